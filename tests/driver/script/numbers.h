// Numbers of scripts and transcripts. "." is the separator, whatever the machine's is.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace velmora::driver {

/// The shortest text that reads back to the same f64.
[[nodiscard]] std::string number_text(double value);
[[nodiscard]] std::string number_text(std::int32_t value);

/// The number that a word of a script is; a ScriptFault for any other word.
[[nodiscard]] double real_number(std::string_view word);
[[nodiscard]] std::int32_t whole_number(std::string_view word);
/// A whole number of 0 or more.
[[nodiscard]] std::int32_t count_number(std::string_view word);
/// An error's number, "80020009": up to 8 hexadecimal digits as a signed 32-bit number.
[[nodiscard]] std::int32_t hex_number(std::string_view word);

} // namespace velmora::driver
