// What boxes show: texts put together from messages and paths.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

namespace velmora {

/// The pieces with one blank between each two; an empty piece keeps its blank.
[[nodiscard]] std::string joined_by_blanks(std::initializer_list<std::string_view> pieces);

/// A UTF-8 text with a blank for each control character: a line's end in a description would break
/// the records of its file.
[[nodiscard]] std::string without_control_characters(std::string_view text);

} // namespace velmora
