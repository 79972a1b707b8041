// The point (0, 0) of a shape that was loaded.
#pragma once

#include <cstdint>

namespace velmora {

/// Offers to move a shape without a point at (0, 0) so that its leftmost point lies there.
void Check00();
/// Index of the first point with the smallest X; 0 when none lies below 100000.
std::int32_t GetMinXPos();

} // namespace velmora
