// The mapping between world and canvas. Canvas positions are pixels, y growing downward;
// state::view.CanvasX0 and CanvasY0 are the world's origin there, state::view.ZoomFactor the pixels
// of one unit.
#pragma once

#include "canvas/surface.h"
#include "document/forma.h"
#include "document/state/view.h"
#include "document/windows/velmora.h"

#include <cstdint>

namespace velmora {

inline constexpr double kCanvasTwips = 15;  ///< to the pixel
inline constexpr double kCanvasMargin = 30; ///< pixels from the edge to the axes without negatives

/// Pixel position of the world's origin on an axis of the canvas, by the smallest coordinate of the
/// shape and the canvas's size in twips: 30 pixels from the edge without negatives, else in the
/// middle.
[[nodiscard]] double origin_on_x(double smallest, double width);
[[nodiscard]] double origin_on_y(double smallest, double height);

/// There is a shape, or one that is put in by hand, and it was drawn.
[[nodiscard]] bool picture_shown();
/// The origin of the picture that is seen: printing leaves another in the session.
[[nodiscard]] Spot origin_seen();

/// Pixel position of a world point, unrounded; raises 6 beyond f64.
[[nodiscard]] double canvas_x(double x);
[[nodiscard]] double canvas_y(double y);
/// World position of a pixel. Raises 11 with a zoom of 0, 6 beyond f64.
[[nodiscard]] double world_x(double px);
[[nodiscard]] double world_y(double py);

/// A pixel position to nearest, ties to even. Raises 6 beyond 32 bits, and for NaN.
[[nodiscard]] std::int32_t to_pixel(double position);
/// Pixel of a point. Raises 6 as to_pixel does.
[[nodiscard]] PixelPoint pixel_of(const Pto& point);
/// A pixel position for the operations that take floats. Raises 6 beyond them.
[[nodiscard]] float to_single(double position);

} // namespace velmora
