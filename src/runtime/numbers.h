// Numbers to text and back, rounding, and arithmetic that reports its faults. Everything here goes
// through std::to_chars and std::from_chars: the process's C locale has no say.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace velmora::runtime {

/// Text to f64, the whole text used; `separator` is '.' or ','. Raises 13 for any text that is not
/// a number, an empty one too, and 6 beyond f64.
[[nodiscard]] double CDbl(std::string_view text, char separator);

/// The longest numeric prefix with '.' as separator, blanks, tabs and line feeds skipped wherever
/// they are; 0 when there is none. Raises 6 beyond f64, never 13.
[[nodiscard]] double Val(std::string_view text);

/// Text to a whole number: CDbl, then to nearest with ties to even. Raises 13, and 6 when the
/// result does not fit.
[[nodiscard]] std::int16_t CInt(std::string_view text, char separator);
[[nodiscard]] std::int32_t CLng(std::string_view text, char separator);

/// f64 to a whole number, to nearest with ties to even. Raises 6 when it does not fit.
[[nodiscard]] std::int16_t to_int16(double value);
[[nodiscard]] std::int32_t to_int32(double value);

/// General form with at most 15 significant digits: 0.5, 1500, 1E-05.
[[nodiscard]] std::string CStr(double value, char separator);
[[nodiscard]] std::string CStr(std::int32_t value);

/// 15 significant digits, then at most 28 decimals, positional form without trailing zeros.
/// Raises 6 from 79228162514264337593543950335 on.
[[nodiscard]] std::string NumACadena(double value, char separator);

/// The f64 that the text of NumACadena names. Raises 6 as it does.
[[nodiscard]] double normalized_15(double value);

/// The pattern "0.00000" over the 15-digit decimal text, halves away from zero.
[[nodiscard]] std::string Format5(double value, char separator);

/// To `decimals` places by what the f64 holds, exact ties to even; the f64 nearest to the decimal.
/// Raises 5 for decimals outside 0..22.
[[nodiscard]] double Round(double value, int decimals);

/// Floor.
[[nodiscard]] double Int(double value);

/// The value itself; raises 6 when an operation made it infinite or no number.
double checked(double value);
/// x / y; raises 11 for x / 0, 6 for 0 / 0 and for a quotient beyond f64.
[[nodiscard]] double divide(double x, double y);

} // namespace velmora::runtime
