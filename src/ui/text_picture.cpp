#include "ui/text_picture.h"

#include "ui/program_style.h"

#include <QPainter>
#include <QScrollBar>

namespace velmora {

namespace {

constexpr int kMargin = 20; ///< right of and below the drawing, as the text has on its left
constexpr int kStep = 20;

} // namespace

TextPicture::TextPicture(QWidget* parent) : QAbstractScrollArea(parent) {
    viewport()->setBackgroundRole(QPalette::Base);
    viewport()->setAutoFillBackground(true);
    setProperty(kFocusRing, true);
    for (QScrollBar* bar : {horizontalScrollBar(), verticalScrollBar()})
        bar->setSingleStep(kStep);
}

void TextPicture::show_segments(std::span<const SeltextoWindow::Segment> segments) {
    lines_.clear();
    QPoint far_corner(-kMargin, -kMargin);
    for (const auto& [from, to] : segments) {
        lines_.append(QLine(from.X, from.Y, to.X, to.Y));
        far_corner.setX(std::max({far_corner.x(), from.X, to.X}));
        far_corner.setY(std::max({far_corner.y(), from.Y, to.Y}));
    }
    content_ = QSize(far_corner.x() + kMargin, far_corner.y() + kMargin);
    fit_bars();
    viewport()->update();
}

QSize TextPicture::sizeHint() const {
    return {620, 220};
}

QSize TextPicture::minimumSizeHint() const {
    return {320, 140};
}

void TextPicture::fit_bars() {
    const QSize seen = viewport()->size();
    horizontalScrollBar()->setRange(0, std::max(0, content_.width() - seen.width()));
    horizontalScrollBar()->setPageStep(seen.width());
    verticalScrollBar()->setRange(0, std::max(0, content_.height() - seen.height()));
    verticalScrollBar()->setPageStep(seen.height());
}

void TextPicture::resizeEvent(QResizeEvent*) {
    fit_bars();
}

void TextPicture::paintEvent(QPaintEvent*) {
    QPainter painter(viewport());
    painter.translate(-horizontalScrollBar()->value(), -verticalScrollBar()->value());
    painter.setPen(palette().color(QPalette::Text));
    painter.drawLines(lines_);
}

} // namespace velmora
