// Numbers as other programs write them: ".95", "+1.0", "5.", "1.5D-03".
#pragma once

#include <optional>
#include <string_view>

namespace velmora::imports {

/// No coordinate is larger; what is written so is not a number here, which keeps all that is
/// calculated from coordinates within f64.
inline constexpr double largest_number = 1e15;

/// The whole text as a number.
[[nodiscard]] std::optional<double> number_of(std::string_view text);
/// The same where the decimal separator is the comma.
[[nodiscard]] std::optional<double> number_with_comma(std::string_view text);
/// The longest number at the start of `text`, which is taken off it.
[[nodiscard]] std::optional<double> take_number(std::string_view& text);

} // namespace velmora::imports
