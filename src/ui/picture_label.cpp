#include "ui/picture_label.h"

#include <QMouseEvent>
#include <QPainter>

namespace velmora {

void PictureLabel::set_picture(const QIcon& picture) {
    picture_ = picture;
    update();
}

void PictureLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawPixmap(rect(), picture_.pixmap(size(), devicePixelRatioF()));
}

void PictureLabel::mouseReleaseEvent(QMouseEvent* event) {
    if (rect().contains(event->pos()))
        emit clicked();
}

} // namespace velmora
