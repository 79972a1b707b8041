#include "ui/view_hand.h"

#include "canvas/mode.h"
#include "ui/canvas_scroll.h"

#include <QApplication>
#include <utility>

namespace velmora {

namespace {
constexpr int kLeft = 1;
constexpr int kMiddle = 4;
} // namespace

ViewHand::ViewHand(CanvasScroll& scroll, std::function<void()> moved)
    : scroll_(scroll), moved_(std::move(moved)) {}

// The shape on its way goes where any button is let go, the middle one too: there Space alone moves
// the view.
bool ViewHand::takes_press(const PointerEvent& at) {
    const bool with_space = space_ && at.button == kLeft;
    const bool with_wheel = at.button == kMiddle && canvas_mode() != CanvasMode::moves_shape;
    if (button_ == 0 && (with_space || with_wheel))
        take_hold(at);
    return with_space;
}

void ViewHand::take_hold(const PointerEvent& at) {
    button_ = at.button;
    last_ = at.on_screen;
    twice_ = at.twice;
    dragged_ = false;
}

bool ViewHand::takes_move(const PointerEvent& at) {
    if ((at.button & button_) == 0) {
        (void)let_go(); // somewhere else, where nobody told
        return false;
    }
    const QPoint way = at.on_screen - last_;
    if (!dragged_ && way.manhattanLength() < QApplication::startDragDistance())
        return button_ == kLeft;
    dragged_ = true;
    last_ = at.on_screen;
    scroll_.go_to(scroll_.place() - way);
    moved_();
    return true;
}

bool ViewHand::takes_release(const PointerEvent& at) {
    if (button_ != kLeft || at.button != kLeft)
        return false;
    (void)let_go();
    return true;
}

ViewHand::Ended ViewHand::let_go() {
    button_ = 0;
    const bool twice = std::exchange(twice_, false);
    if (std::exchange(dragged_, false))
        return Ended::drag;
    return twice ? Ended::double_click : Ended::nothing;
}

} // namespace velmora
