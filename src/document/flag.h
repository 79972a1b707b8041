// Flags are 16 bits: -1 true, 0 false.
#pragma once

#include <cstdint>

namespace velmora {

using Flag = std::int16_t;
inline constexpr Flag True = -1;
inline constexpr Flag False = 0;
inline constexpr Flag flag(bool value) {
    return value ? True : False;
}

} // namespace velmora
