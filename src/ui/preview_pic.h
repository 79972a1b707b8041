// A small picture of the workbench. It keeps what was drawn and paints it in the resolution of its
// screen; a picture that is resized afterwards shows the same drawing at its new size.
#pragma once

#include "cutprep/preview_surface.h"

#include <QFrame>
#include <QPixmap>
#include <cstddef>
#include <vector>

namespace velmora {

class PreviewPic : public QFrame, public PreviewSurface {
    Q_OBJECT
  public:
    explicit PreviewPic(QWidget* parent = nullptr);

    [[nodiscard]] double ScaleWidth() const override;
    [[nodiscard]] double ScaleHeight() const override;
    void Cls() override;
    void Line(double x1, double y1, double x2, double y2, std::uint32_t colour) override;
    void Circle(double x, double y, double radius, std::uint32_t colour) override;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    /// A segment, or a circle round its first end.
    struct Mark {
        double x1, y1, x2, y2;
        double radius; ///< 0 for a segment
        std::uint32_t colour;
    };

    void add(const Mark& mark);
    /// An empty sheet where size or resolution are no longer those of the present one.
    void fit_sheet();
    /// Paints the marks that are not on the sheet yet.
    void bring_up_to_date();
    /// The drawing's scale to pixels of the sheet.
    [[nodiscard]] QTransform to_sheet() const;

    std::vector<Mark> marks_;
    QSizeF drawn_size_;       ///< of the picture when it was cleared last
    QPixmap sheet_;           ///< what is painted already
    std::size_t painted_ = 0; ///< marks on the sheet
    bool repaint_asked_ = false;
};

} // namespace velmora
