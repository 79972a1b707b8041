// The picture Pic_Space: the cut in the machine. A drag turns it, Shift or another button moves it,
// the keys 1 to 4 show plan, front, side and all three.
#pragma once

#include "cutview/space_view.h"
#include "forms/cut_scene.h"
#include "ui/cut_pic.h"

namespace velmora {

class SpacePic : public CutPic {
    Q_OBJECT
  public:
    using CutPic::CutPic;
    void turn_to(cutview::Turn turn);
    [[nodiscard]] const cutview::SpaceView& view() const { return view_; }

  protected:
    void fit() override;
    void zoom(double factor, QPointF around) override;
    void drag(QPointF by, bool aside) override;
    void go_to_mark() override;
    void take_room(QSizeF room) override;
    void paint(QPainter& painter) override;
    bool take_key(int key) override;
    [[nodiscard]] std::optional<std::size_t> point_at(QPointF place) const override;
    [[nodiscard]] bool has_picture() const override;
    void start_over() override;

  private:
    cutview::SpaceView view_;
    std::shared_ptr<const CutAtHand> of_; ///< whose scene it is
    std::optional<CutScene> scene_;
};

} // namespace velmora
