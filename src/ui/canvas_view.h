// The canvas in the main window: the image that the logic draws in its scrolling container, the
// floating label, and the events that go to the logic.
#pragma once

#include "document/windows/velmora.h"

#include <QObject>
#include <functional>

class QLabel;
class QScrollArea;

namespace velmora {

class Bindings;
class PicWidget;
class ShownImage;

class CanvasView : public QObject {
    Q_OBJECT
  public:
    using Dispatch = std::function<void(const std::function<void()>&)>;

    CanvasView(ShownImage& image, PicWidget& pic, QLabel& lbl_xyfloat, QScrollArea& scroll);
    ~CanvasView() override;

    void bind(Bindings& bindings, VelmoraWindow& state);
    /// Sends the events of pointer, keys and scroll bars to their handlers.
    void wire(Dispatch dispatch);

  private:
    void bind_label(Bindings& bindings, VelmoraWindow& state);
    void wire_scroll_bars();
    /// Puts the bars where the program wants them.
    void scroll_to(double x, double y);
    void repaint_after_scroll();

    ShownImage& image_;
    PicWidget& pic_;
    QLabel& label_;
    QScrollArea& scroll_;
    Dispatch dispatch_;
    double scroll_x_ = 0; ///< shares of the bars' maximum, as the program set them last
    double scroll_y_ = 1;
    bool user_scrolled_ = false; ///< since then
    bool repaint_due_ = false;
};

} // namespace velmora
