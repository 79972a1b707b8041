// Rational B-splines, and their flattening: no chord lies farther from its curve than the
// tolerance.
#pragma once

#include "import/pieces.h"

#include <cstddef>
#include <vector>

namespace velmora::imports {

/// A rational B-spline; without weights they are all 1.
struct Nurbs {
    std::size_t degree = 3;
    std::vector<double> knots;
    std::vector<Point> points;
    std::vector<double> weights;
};
/// Numbers and orders fit together, so that it can be drawn.
[[nodiscard]] bool is_whole(const Nurbs& curve);

/// Of a curve that is whole, from its first inner knot to its last.
void flatten(const Nurbs& curve, double tolerance, Pieces& pieces);

} // namespace velmora::imports
