// Texts of boxes that are put together from messages, paths and figures.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

namespace velmora {

/// The pieces with one blank between each two; an empty piece keeps its blank.
[[nodiscard]] std::string joined_by_blanks(std::initializer_list<std::string_view> pieces);

} // namespace velmora
