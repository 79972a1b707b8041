// The picture Test_Pic: a small outline in the colours of the session, with the floating label
// lbl_float beside its selected point.
#pragma once

#include <QColor>
#include <QWidget>

class QLabel;

namespace velmora {

class SamplePic : public QWidget {
    Q_OBJECT
  public:
    explicit SamplePic(QWidget* parent = nullptr);
    /// Takes the session's colours as they are now.
    void draw();
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    struct Colours {
        QColor background, axes, lines, first_line, second_line, point, sync_point, selected;
    };

    [[nodiscard]] QPointF place(QPointF share) const;
    void draw_axes(QPainter& painter) const;
    void draw_outline(QPainter& painter) const;
    void draw_points(QPainter& painter) const;

    QLabel& float_;
    Colours colours_;
};

} // namespace velmora
