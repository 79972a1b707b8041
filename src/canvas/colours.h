// Colours as the settings hold them, and as a screen shows them.
#pragma once

#include <cstdint>

namespace velmora {

/// 0xRRGGBB of a stored colour: red + 256 green + 65536 blue, or, with the top bit set, the number
/// of a system colour. The system's colours are those of the classic desktop, the same on every
/// machine; a number that is none gives black.
[[nodiscard]] std::uint32_t screen_rgb(std::uint32_t colour);

} // namespace velmora
