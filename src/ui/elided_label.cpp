#include "ui/elided_label.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

namespace velmora {

ElidedLabel::ElidedLabel(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
}

bool ElidedLabel::event(QEvent* event) {
    const bool cut = fontMetrics().horizontalAdvance(text()) > contentsRect().width();
    if (event->type() != QEvent::ToolTip || !cut)
        return QLabel::event(event);
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), text().toHtmlEscaped(), this);
    return true;
}

void ElidedLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QRect place = contentsRect();
    const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, place.width());
    style()->drawItemText(&painter, place, static_cast<int>(Qt::AlignVCenter | Qt::AlignLeft),
                          palette(), isEnabled(), shown, QPalette::WindowText);
}

} // namespace velmora
