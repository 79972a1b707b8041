// The canvas in the main window: the image that the logic draws in its scrolling container, the
// floating label, and the events that go to the logic.
#pragma once

#include "document/windows/velmora.h"

#include <QObject>
#include <functional>
#include <optional>

class QLabel;

namespace velmora {

class Bindings;
class CanvasScroll;
class PicWidget;
struct PointerEvent;
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
    /// Puts the bars where the program wants them.
    void take_place();
    [[nodiscard]] QPoint wanted_place() const;
    [[nodiscard]] VisibleBox visible() const;
    void repaint_after_scroll();
    void user_moved_view();

    ShownImage& image_;
    PicWidget& pic_;
    QLabel& label_;
    CanvasScroll& scroll_;
    Dispatch dispatch_;
    double scroll_x_ = 0; ///< shares of the bars' maximum, as the program set them last
    double scroll_y_ = 1;
    std::optional<Spot> middle_; ///< in place of them
    bool user_scrolled_ = false; ///< since then
    bool repaint_due_ = false;
    bool pressed_twice_ = false;
};

} // namespace velmora
