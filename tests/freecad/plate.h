// The outlines of the plate of drawing.py, with its spline as the add-on follows it. An arc has 7
// steps, a circle 12.
#pragma once

#include <numbers>
#include <utility>
#include <vector>

namespace velmora::test {

using Place = std::pair<double, double>;
using Places = std::vector<Place>;

inline constexpr double kTurn = 2 * std::numbers::pi;

[[nodiscard]] Place on_circle(Place centre, double radius, double angle);
/// From its first entity.
[[nodiscard]] Places plate_outline(const Places& curve);
/// From the corner at the start of the arc, the other way round.
[[nodiscard]] Places plate_outline_from_corner(const Places& curve);

} // namespace velmora::test
