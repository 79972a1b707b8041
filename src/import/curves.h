// The curves of drawings, and their flattening: no chord lies farther from its curve than the
// tolerance. A curve's first point is added with it.
#pragma once

#include "import/pieces.h"

#include <optional>
#include <span>
#include <vector>

namespace velmora::imports {

/// centre + cos t · major + sin t · minor, for t from `start` over `sweep` radians. `major` and
/// `minor` are any two vectors, so that every plane image of a circle's arc is one of these.
struct EllipseArc {
    Point centre;
    Point major;
    Point minor;
    double start = 0;
    double sweep = 0;

    [[nodiscard]] Point at(double t) const {
        return centre + std::cos(t) * major + std::sin(t) * minor;
    }
};
[[nodiscard]] EllipseArc circle_arc(const Point& centre, double radius, double start, double sweep);
[[nodiscard]] EllipseArc mapped(const EllipseArc& arc, const Map& map);
/// The arc from one point to the next whose bulge is the tangent of a quarter of its sweep,
/// positive to the left; none for a bulge of 0 or two equal points.
[[nodiscard]] std::optional<EllipseArc> bulge_arc(const Point& from, const Point& to, double bulge);

/// Cubic.
struct Bezier {
    Point p0;
    Point p1;
    Point p2;
    Point p3;
};
/// The same curve as one of second degree.
[[nodiscard]] Bezier raised(const Point& p0, const Point& p1, const Point& p2);

/// Straight pieces of an arc at the tolerance.
[[nodiscard]] std::size_t chords_of(const EllipseArc& arc, double tolerance);

void flatten(const EllipseArc& arc, double tolerance, Pieces& pieces);
/// Without its ends, for one who has them to the last digit.
void flatten_between(const EllipseArc& arc, double tolerance, Pieces& pieces);
void flatten(const Bezier& curve, double tolerance, Pieces& pieces);

/// The cubic of continuous curvature through all points, by the lengths between them; directions at
/// the ends where they are given, else straight ends.
[[nodiscard]] std::vector<Bezier> through(std::span<const Point> points,
                                          const std::optional<Point>& first_direction,
                                          const std::optional<Point>& last_direction);

} // namespace velmora::imports
