// What tells the place on the canvas: the rulers at its edges, the pointer's position in the status
// bar.
#pragma once

#include <QObject>
#include <QPoint>
#include <optional>

class QLabel;

namespace velmora {

class Bindings;
class CanvasScroll;
class PicWidget;
class Ruler;

class ViewMarks : public QObject {
    Q_OBJECT
  public:
    struct Parts {
        PicWidget& pic;
        CanvasScroll& scroll;
        Ruler& along;   ///< above the canvas
        Ruler& upright; ///< beside it
        QLabel& position;
    };
    explicit ViewMarks(const Parts& parts);

    void bind(Bindings& bindings);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void show_all();
    void show_rulers(std::optional<QPoint> pointer);

    Parts parts_;
    std::optional<QPoint> pointer_; ///< on the screen, while it is over the canvas
};

} // namespace velmora
