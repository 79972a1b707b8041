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

  protected:
    bool focusNextPrevChild(bool next) override;
};

} // namespace velmora
