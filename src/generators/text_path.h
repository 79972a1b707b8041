// A text's outlines as one list of entries, each a place and what leads there.
#pragma once

#include "document/windows/seltexto.h"
#include "generators/text_outlines.h"

#include <cstdint>
#include <span>

namespace velmora {

/// What leads to an entry.
namespace path_type {
inline constexpr std::uint8_t line = 2;
inline constexpr std::uint8_t line_and_close = 3; ///< the last of its figure
inline constexpr std::uint8_t move = 6;           ///< the first of its figure
} // namespace path_type

/// Writes the figures, one after the other, at whole pixels, ties to even; steps that fall together
/// there count once, and a figure does not come back to its first place. A figure of one place has
/// nothing to draw and is passed over, as fonts have them for their own use. Returns the number of
/// entries, or -1 when they do not fit into both lists. Raises 6 for a place beyond 32 bits.
[[nodiscard]] std::int32_t GetPath(std::span<const Figure> figures,
                                   std::span<SeltextoWindow::PathPoint> points,
                                   std::span<std::uint8_t> types);

} // namespace velmora
