#include "ui/canvas_scroll.h"

namespace velmora {

bool CanvasScroll::focusNextPrevChild(bool next) {
    return QWidget::focusNextPrevChild(next); // NOLINT(bugprone-parent-virtual-call): on purpose
}

} // namespace velmora
