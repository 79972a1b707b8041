// A ruler along an edge of the canvas, in the units of the shape, with a line where the pointer is.
#pragma once

#include <QWidget>
#include <optional>

namespace velmora {

/// How the canvas stands beside the ruler.
struct RulerView {
    bool drawn = false; ///< there is a picture to measure
    double zoom = 1;    ///< pixels of one unit
    double origin = 0;  ///< pixels from the ruler's begin to the world's origin
    int length = 0;     ///< pixels of canvas that are seen
    std::optional<int> pointer = {};

    bool operator==(const RulerView&) const = default;
};

class Ruler : public QWidget {
    Q_OBJECT
  public:
    explicit Ruler(QWidget* parent = nullptr);

    /// Along the left edge the numbers grow upward.
    void set_upright(bool upright);
    void show_view(const RulerView& view);

    [[nodiscard]] QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    [[nodiscard]] int thickness() const;
    void draw_marks(QPainter& painter) const;
    void draw_mark(QPainter& painter, double at, const QString& label) const;

    bool upright_ = false;
    RulerView view_;
};

} // namespace velmora
