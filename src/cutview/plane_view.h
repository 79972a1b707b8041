// The view on a drawing in a plane: fitted into a picture, zoomed round a place, moved by hand.
#pragma once

#include "cutview/geometry.h"

namespace velmora::cutview {

class PlaneView {
  public:
    /// The size of the picture. A view that is fitted stays so; another one keeps its middle.
    void set_room(double width, double height);
    /// All of the drawing as large as the room allows, in its middle.
    void fit(const Extent& drawing);
    /// By a factor, the place of the screen that is given stays where it is; between a tenth and a
    /// hundred thousand times the fitted size.
    void zoom(double factor, Spot around);
    void move(Spot by);
    /// Part of the drawing into the middle, large: from four to 64 times the fitted size.
    void look_at(const Extent& part);

    [[nodiscard]] bool fitted() const { return fitted_; }
    [[nodiscard]] double scale() const { return scale_; }
    [[nodiscard]] Spot on_screen(Spot drawing) const;
    [[nodiscard]] Spot in_drawing(Spot screen) const;
    [[nodiscard]] Spot middle_of_room() const { return {width_ / 2, height_ / 2}; }

  private:
    void fit_again();

    Extent drawing_;
    double width_ = 1;
    double height_ = 1;
    double scale_ = 1; ///< pixels to the unit
    double fit_scale_ = 1;
    Spot middle_; ///< of the drawing, in the middle of the room
    bool fitted_ = true;
};

/// Pixels to the unit for a drawing of that size in a room, with a margin; 1 where it has no size.
[[nodiscard]] double fitting_scale(double width, double height, double room_width,
                                   double room_height, double margin);

} // namespace velmora::cutview
