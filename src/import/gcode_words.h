// The words of a line of G-code.
#pragma once

#include <string_view>
#include <vector>

namespace velmora::imports {

struct GcodeWord {
    char letter = 0; ///< a capital
    double number = 0;
};

enum class GcodeLine : unsigned char { read, empty, refused };

/// Blanks count nowhere, not within a number either; comments, line numbers, a line with "/" in
/// front and "%" are left out. Refused is what has variables, expressions or other marks.
[[nodiscard]] GcodeLine gcode_words(std::string_view line, std::vector<GcodeWord>& words);

} // namespace velmora::imports
