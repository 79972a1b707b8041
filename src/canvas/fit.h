// The zoom at which a part of the shape fills what is to be seen of the canvas, and the place where
// it then stands in the middle. The canvas itself stays: it reaches 30 pixels beyond the origin of
// an axis without negatives and to the middle otherwise, so that what lies far from the origin fits
// by less than the window would hold.
#pragma once

#include "document/forma.h"
#include "document/windows/velmora.h"

#include <optional>
#include <span>

namespace velmora {

/// The smallest box in the world that holds all of some points; they are one or more.
struct WorldBox {
    double left = 0;
    double bottom = 0;
    double right = 0;
    double top = 0;

    bool operator==(const WorldBox&) const = default;
};

[[nodiscard]] WorldBox box_of(std::span<const Pto> points);

/// What the canvas offers to the shape at hand: its origin by the sign of the shape's smallest
/// coordinates, in pixels, and its edges less a margin.
struct CanvasReach {
    double x0 = 0;
    double y0 = 0;
    double left = 0;
    double top = 0;
    double right = 0;
    double bottom = 0;
};

[[nodiscard]] CanvasReach canvas_reach();

/// The largest zoom of four digits at which `box` stands whole on the canvas, and, with the point
/// `middle` in the middle, in `visible` with a margin of 30 pixels on each side; 1E9 at most.
/// Nothing where the box has no extent, and where it is beyond a billionth.
[[nodiscard]] std::optional<double>
fitting_zoom(const WorldBox& box, Spot middle, const VisibleBox& visible, const CanvasReach& reach);

/// Fits the whole shape into what is seen of the canvas: ZoomFactor and its box, Define_Layout,
/// Dibuja, then the middle. A shape without extent keeps its zoom.
void fit_shape();
/// The same for the selected point in the middle and the five points on each side of it, around the
/// end of the outline too. Without a selection the whole shape.
void fit_selected_point();

} // namespace velmora
