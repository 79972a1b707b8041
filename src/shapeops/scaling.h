// The whole shape in another size. Each routine has its own error route: a box, and what was done
// stays.
#pragma once

#include <cstdint>

namespace velmora {

/// Scales so that the larger of GetMaxX and GetMaxY becomes 1.
void ScaleToUnit();
/// Target sizes measured from the origin when `by_size` is not 0, percentages otherwise. The loop
/// counts in 16 bits: more than 32767 points raise an overflow in its route, on purpose.
void ScaleXY(double xval, double yval, std::int16_t by_size);

} // namespace velmora
