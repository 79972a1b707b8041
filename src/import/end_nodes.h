// Which ends of pieces lie at the same place.
#pragma once

#include "import/geometry.h"

#include <cstdint>
#include <span>
#include <vector>

namespace velmora::imports {

/// The number of each place, from 0 on without holes: places within `gap` of each other have the
/// same. Takes time by the number of places alone, however they lie.
[[nodiscard]] std::vector<std::uint32_t> nodes_of(std::span<const Point> places, double gap);

} // namespace velmora::imports
