// The picture Pic_Sides: both outlines in one plane.
#pragma once

#include "cutview/plane_view.h"
#include "ui/cut_pic.h"

#include <QPixmap>

namespace velmora {

class SidesPic : public CutPic {
    Q_OBJECT
  public:
    using CutPic::CutPic;
    [[nodiscard]] const cutview::PlaneView& view() const { return view_; }

  protected:
    void fit() override;
    void zoom(double factor, QPointF around) override;
    void drag(QPointF by, bool aside) override;
    void go_to_mark() override;
    void take_room(QSizeF room) override;
    void paint(QPainter& painter) override;
    void start_over() override;
    [[nodiscard]] std::optional<std::size_t> point_at(QPointF place) const override;

  private:
    void draw_sheet();

    cutview::PlaneView view_;
    QPixmap sheet_; ///< all but the wire
};

} // namespace velmora
