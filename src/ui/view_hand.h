// The hand that moves the view: the middle button, or the left one while Space is down.
#pragma once

#include "ui/pic_widget.h"

#include <QPoint>
#include <functional>

namespace velmora {

class CanvasScroll;

class ViewHand {
  public:
    /// `moved` is called when the view went somewhere.
    ViewHand(CanvasScroll& scroll, std::function<void()> moved);

    /// The press is the hand's alone, and the logic's no more. A press of the middle button stays
    /// the logic's too.
    [[nodiscard]] bool takes_press(const PointerEvent& at);
    /// The view goes with the pointer.
    [[nodiscard]] bool takes_move(const PointerEvent& at);
    /// The release is the hand's alone.
    [[nodiscard]] bool takes_release(const PointerEvent& at);

    /// What a release of the middle button meant beside what it means to the logic.
    enum class Ended { nothing, drag, double_click };
    [[nodiscard]] Ended let_go();

    void space(bool down) { space_ = down; }
    [[nodiscard]] bool shows() const { return space_ || dragged_; }
    [[nodiscard]] bool drags() const { return dragged_; }

  private:
    void take_hold(const PointerEvent& at);

    CanvasScroll& scroll_;
    std::function<void()> moved_;
    int button_ = 0; ///< that holds the view
    QPoint last_;    ///< on the screen
    bool space_ = false;
    bool twice_ = false;
    bool dragged_ = false;
};

} // namespace velmora
