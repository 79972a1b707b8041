#include "ui/lamp.h"

#include <QPainter>
#include <QPainterPath>

namespace velmora {

namespace {

constexpr std::uint32_t kGreen = 65280;

QPainterPath mark_of(bool green) {
    QPainterPath mark; // in a square of 24
    if (green) {
        mark.moveTo(7, 12.5);
        mark.lineTo(10.5, 16);
        mark.lineTo(17, 8.5);
    } else {
        mark.moveTo(8, 8);
        mark.lineTo(16, 16);
        mark.moveTo(16, 8);
        mark.lineTo(8, 16);
    }
    return mark;
}

} // namespace

Lamp::Lamp(QWidget* parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void Lamp::set_colour(std::uint32_t colour) {
    colour_ = colour;
    update();
}

QSize Lamp::sizeHint() const {
    const int side = fontMetrics().height();
    return {side, side};
}

void Lamp::paintEvent(QPaintEvent*) {
    const bool green = colour_ == kGreen;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(width() / 24.0, height() / 24.0);
    painter.setPen(Qt::NoPen);
    painter.setBrush(green ? QColor("#1f9d55") : QColor("#c53a3a"));
    painter.drawEllipse(QPointF(12, 12), 11, 11);
    painter.setPen(QPen(Qt::white, 2.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(mark_of(green));
}

} // namespace velmora
