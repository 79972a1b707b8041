#include "ui/canvas_scroll.h"

#include <QScrollBar>
#include <QWheelEvent>
#include <algorithm>

namespace velmora {

namespace {

constexpr int kStep = QWheelEvent::DefaultDeltasPerStep;

// Where all of the canvas is seen there is nothing to scroll, and no bar that could come and go.
void reach_on(QScrollBar& bar, int beyond, int place) {
    if (beyond > 0)
        bar.setRange(std::min(0, place), std::max(beyond, place));
}

} // namespace

void CanvasScroll::reach(QPoint place) {
    const QSize beyond = widget()->size() - viewport()->size();
    reach_on(*horizontalScrollBar(), beyond.width(), place.x());
    reach_on(*verticalScrollBar(), beyond.height(), place.y());
}

QPoint CanvasScroll::place() const {
    return {horizontalScrollBar()->value(), verticalScrollBar()->value()};
}

void CanvasScroll::go_to(QPoint place) {
    horizontalScrollBar()->setValue(place.x());
    verticalScrollBar()->setValue(place.y());
}

bool CanvasScroll::focusNextPrevChild(bool next) {
    return QWidget::focusNextPrevChild(next); // NOLINT(bugprone-parent-virtual-call): on purpose
}

void CanvasScroll::wheelEvent(QWheelEvent* event) {
    if (!event->modifiers().testFlag(Qt::ControlModifier)) {
        turned_ = 0;
        return QScrollArea::wheelEvent(event);
    }
    event->accept();
    turned_ += event->angleDelta().y();
    const int steps = turned_ / kStep;
    turned_ %= kStep;
    if (steps != 0)
        emit wheel_zoomed(steps, event->globalPosition().toPoint());
}

} // namespace velmora
