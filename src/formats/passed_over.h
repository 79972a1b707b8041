// What a reader of lines passed over though it holds numbers: the reader says nothing of it.
#pragma once

#include <cstddef>
#include <string_view>

namespace velmora {

/// The line begins with two numbers as any program writes them: ".95", "+1.0", parted by blanks,
/// tabs, commas or semicolons.
[[nodiscard]] bool begins_with_two_numbers(std::string_view line);

/// The lines of a file that begin with two numbers and that `takes` refuses; 0 where the file can't
/// be read.
[[nodiscard]] std::size_t lines_passed_over(std::string_view path, bool (*takes)(std::string_view));

} // namespace velmora
