// What a person can have written into a language database.
#pragma once

#include <string>
#include <string_view>

namespace velmora {

/// All rows of all tables as one text, the same for the same rows in whatever order they were
/// added; without the tables that the program itself writes. Raises as Database::open does.
[[nodiscard]] std::string language_texts(std::string_view path);

} // namespace velmora
