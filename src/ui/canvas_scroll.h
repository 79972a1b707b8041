// The scrolling container SSScroll around the canvas.
#pragma once

#include <QScrollArea>

namespace velmora {

/// The toolkit's own container brings the widget with the focus to its middle at each Tab: the
/// canvas, whose shape is then out of sight. Here only the program's layout and the user scroll.
class CanvasScroll : public QScrollArea {
    Q_OBJECT
  public:
    using QScrollArea::QScrollArea;

    /// Its bars reach as far as the canvas, and to these places where they lie beyond.
    void reach(QPoint place);
    [[nodiscard]] QPoint place() const;
    void go_to(QPoint place);

  signals:
    /// Ctrl and the wheel: whole steps, away from the user above 0, with the pointer's place on the
    /// screen.
    void wheel_zoomed(int steps, QPoint on_screen);

  protected:
    bool focusNextPrevChild(bool next) override;
    void wheelEvent(QWheelEvent* event) override;

  private:
    int turned_ = 0; ///< eighths of a degree that made no step yet
};

} // namespace velmora
