// Numbers and text with the machine's separator (state::program.SepDecimal), and the two roads by
// which a coordinate from outside comes in.
#pragma once

#include "document/state/program.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace velmora {

/// Text of a number, at most 15 significant digits.
[[nodiscard]] std::string CStr(double value);
[[nodiscard]] std::string CStr(std::int32_t value);
/// Text to f64. Raises 13 where the text is not a number, 6 beyond f64.
[[nodiscard]] double CDbl(std::string_view text);
/// The pattern "0.00000".
[[nodiscard]] std::string Format5(double value);

/// Positional text with at most 15 significant digits. Raises 6 beyond 28 whole digits.
[[nodiscard]] std::string NumACadena(double value);
/// The value rounded to 15 significant digits, through its text. Raises 6 as NumACadena does.
[[nodiscard]] double Normaliza15(double value);
/// Text to f64 with a negative exponent unfolded by hand; serves the comma notation alone, and may
/// change `s` (a leading "-" is taken off). Raises 5 where a piece would have a negative
/// length, 13.
[[nodiscard]] double CadenaAReal(std::string& s);

} // namespace velmora
