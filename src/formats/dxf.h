// The DXF reader: drawings of R14 and 2000, by fixed line patterns.
#pragma once

#include <cstdint>
#include <string_view>

namespace velmora {

/// Loads a drawing into Forma; -1 when the load went to its end, 0 when it was cancelled after an
/// error.
std::int16_t CargaDXF(std::string_view fichero);

} // namespace velmora
