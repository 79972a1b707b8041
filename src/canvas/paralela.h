// Pixels of the compensated outline.
#pragma once

#include "canvas/surface.h"
#include "document/forma.h"

namespace velmora {

/// Like pixel_of, with the product of zoom and coordinate rounded to 15 significant digits before
/// the origin is added, and the sum taken as exact decimals. Raises 6 beyond 32 bits.
[[nodiscard]] PixelPoint paralela_pixel(const Pto& point);

} // namespace velmora
