// Where an outline crosses itself.
#pragma once

#include "cutting/sides.h"

#include <cstddef>
#include <span>
#include <vector>

namespace velmora::cutting {

struct Crossing {
    std::size_t first = 0; ///< the step from this point, the lower of the two
    std::size_t second = 0;
    Point where = {};
};

/// Crossings by the step that comes first. An outline that crosses itself has one at least, and
/// each that is named is one, by exact arithmetic: touching, a repeated point and a stretch in
/// common, as a way back over the way there, are none. Not all are named of a step that crosses
/// many others, nor where three ways and more meet in one place. Coordinates are finite and at most
/// 1e15 in size. Time grows as n log n.
[[nodiscard]] std::vector<Crossing> self_crossings(std::span<const Point> points, bool closed);

} // namespace velmora::cutting
