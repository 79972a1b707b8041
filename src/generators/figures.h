// The predefined figures: outlines of unit size, open, their first point a sync point.
#pragma once

#include "document/forma.h"

#include <cstdint>
#include <span>

namespace velmora::figures {

/// Counter-clockwise from (0, 0).
[[nodiscard]] std::span<const Pto> square();
[[nodiscard]] std::span<const Pto> triangle();
/// Around (0.5, 0.5), `points` at least 1, from (1, 0.5) on. Raises 7 beyond memory.
[[nodiscard]] Array<Pto> circle(std::int32_t points);

} // namespace velmora::figures
