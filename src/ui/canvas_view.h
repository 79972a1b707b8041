// The canvas in the main window: the image that the logic draws in its scrolling container, the
// floating label, and the events that go to the logic.
#pragma once

#include "document/windows/velmora.h"
#include "ui/view_hand.h"

#include <QObject>
#include <functional>
#include <optional>

class QLabel;

namespace velmora {

class Bindings;
class CanvasScroll;
class PicWidget;
class ShownImage;

class CanvasView : public QObject {
    Q_OBJECT
  public:
    using Dispatch = std::function<void(const std::function<void()>&)>;

    CanvasView(ShownImage& image, PicWidget& pic, QLabel& lbl_xyfloat, CanvasScroll& scroll);
    ~CanvasView() override;

    void bind(Bindings& bindings, VelmoraWindow& state);
    /// Sends the events of pointer, keys and scroll bars to their handlers.
    void wire(Dispatch dispatch);

  private:
    void bind_label(Bindings& bindings, VelmoraWindow& state);
    void bind_view(Bindings& bindings, VelmoraWindow& state);
    void wire_pointer();
    void wire_keys();
    void wire_scroll_bars();
    void released(const PointerEvent& at);
    void space(bool down);
    void show_cursor();
    /// Puts the bars where the program wants them.
    void take_place();
    [[nodiscard]] QPoint wanted_place() const;
    [[nodiscard]] VisibleBox visible() const;
    void repaint_after_scroll();
    void user_moved_view();
    void zoom_by_wheel(int steps, QPoint on_screen);
    void zoom_now();

    ShownImage& image_;
    PicWidget& pic_;
    QLabel& label_;
    CanvasScroll& scroll_;
    ViewHand hand_;
    Dispatch dispatch_;
    double scroll_x_ = 0; ///< shares of the bars' maximum, as the program set them last
    double scroll_y_ = 1;
    std::optional<Spot> middle_; ///< in place of them
    bool user_scrolled_ = false; ///< since then
    bool repaint_due_ = false;
    int pointer_ = 0;     ///< the canvas's own, as the program set it
    int wheel_steps_ = 0; ///< not yet zoomed by
    QPoint wheel_at_;
    bool zoom_due_ = false;
};

} // namespace velmora
