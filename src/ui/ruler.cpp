#include "ui/ruler.h"

#include "canvas/ruler_scale.h"

#include <QEvent>
#include <QPainter>
#include <cmath>

namespace velmora {

namespace {

constexpr double kTextSize = 0.8; // of the window's
constexpr int kGap = 2;
constexpr double kShortMark = 0.3; // of the ruler's thickness

} // namespace

Ruler::Ruler(QWidget* parent) : QWidget(parent) {
    QFont small = font();
    if (small.pointSizeF() > 0)
        small.setPointSizeF(small.pointSizeF() * kTextSize);
    setFont(small);
    setFocusPolicy(Qt::NoFocus);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

void Ruler::set_upright(bool upright) {
    upright_ = upright;
    if (upright)
        setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Ignored);
    updateGeometry();
}

void Ruler::show_view(const RulerView& view) {
    if (view == view_)
        return;
    view_ = view;
    update();
}

int Ruler::thickness() const {
    return fontMetrics().height() + 2 * kGap;
}

QSize Ruler::sizeHint() const {
    return {thickness(), thickness()};
}

void Ruler::changeEvent(QEvent* event) {
    if (event->type() == QEvent::FontChange)
        updateGeometry();
    QWidget::changeEvent(event);
}

// Both rulers are drawn as one that lies: the upright one is turned, its begin at the top, and its
// edge at the canvas.
void Ruler::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), palette().window());
    if (upright_)
        painter.setTransform(QTransform(0, 1, 1, 0, 0, 0));
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawLine(0, thickness() - 1, view_.length, thickness() - 1);
    if (view_.drawn)
        draw_marks(painter);
    if (view_.drawn && view_.pointer) {
        painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
        painter.drawLine(*view_.pointer, 0, *view_.pointer, thickness());
    }
}

void Ruler::draw_marks(QPainter& painter) const {
    painter.setPen(palette().color(QPalette::WindowText));
    painter.setClipRect(0, 0, view_.length, thickness());
    const int direction = upright_ ? -1 : 1;
    for (const RulerMark& mark : ruler_marks(view_.zoom, view_.origin, view_.length, direction))
        draw_mark(painter, mark.pixel, QString::fromStdString(mark.label));
    painter.setClipping(false);
}

void Ruler::draw_mark(QPainter& painter, double at, const QString& label) const {
    const int x = static_cast<int>(std::lround(at));
    if (label.isEmpty()) {
        painter.drawLine(x, static_cast<int>(thickness() * (1 - kShortMark)), x, thickness());
        return;
    }
    painter.drawLine(x, 0, x, thickness());
    painter.save();
    if (upright_) { // read from below, behind its mark
        painter.setTransform(QTransform(0, -1, 1, 0, 0, 0));
        painter.drawText(QPoint(-x + kGap, kGap + fontMetrics().ascent()), label);
    } else {
        painter.drawText(QPoint(x + kGap, kGap + fontMetrics().ascent()), label);
    }
    painter.restore();
}

} // namespace velmora
