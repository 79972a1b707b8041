// Cut compensation: an outline beside another, off by what wire or cutter takes away.
#pragma once

#include "document/forma.h"

namespace velmora {

/// Each point moves by `merma`, in the outline's units, at right angles to the chord that leaves
/// it; the sign of the chord's slope is thrown away, on purpose. The last point stays, and so do
/// the flags. Raises 6 where the arithmetic leaves f64.
[[nodiscard]] Array<Pto> compensated(const Array<Pto>& outline, double merma);

} // namespace velmora
