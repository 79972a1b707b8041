// The data of an SVG path.
#pragma once

#include "import/curves.h"
#include "import/geometry.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace velmora::imports {

/// Where the runs of a path go.
struct SvgPen {
    Pieces& pieces;
    const Map& map;
    double tolerance;
    std::size_t line;
    std::uint16_t layer;
};

/// Adds each run as a piece. At an error what precedes it stays: where in the data it is, the size
/// of the data where there is none.
[[nodiscard]] std::size_t read_svg_path(std::string_view data, const SvgPen& pen);

/// The arc of a path between two points by its radii, turned by an angle in radians; none where it
/// is a straight line or nothing.
[[nodiscard]] std::optional<EllipseArc> svg_arc(const Point& from, const Point& to, double radius_X,
                                                double radius_Y, double angle, bool large,
                                                bool counter_clockwise);

} // namespace velmora::imports
