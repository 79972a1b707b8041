// Text helpers: blanks, capitals of UTF-8 text, the 8-bit letters of the outline files.
#pragma once

#include <string>
#include <string_view>

namespace velmora::runtime {

/// Without the blanks on both ends; blanks alone (character 32), tabs stay.
[[nodiscard]] std::string_view Trim(std::string_view text);
/// Capitals of a UTF-8 text: ASCII, and the letters of Latin-1 and of Windows-1252.
[[nodiscard]] std::string UCase(std::string_view text);
/// Characters of a UTF-8 text (not bytes). A byte that is not UTF-8 counts as one.
[[nodiscard]] std::size_t Len(std::string_view text);
/// The first n characters, the last n characters of a UTF-8 text; n < 0 raises 5.
[[nodiscard]] std::string Left(std::string_view text, int n);
[[nodiscard]] std::string Right(std::string_view text, int n);
/// Windows-1252 bytes to UTF-8 and back; what has no place in Windows-1252 becomes '?'.
[[nodiscard]] std::string from_1252(std::string_view bytes);
[[nodiscard]] std::string to_1252(std::string_view utf8);
/// Every `from` becomes `to`.
[[nodiscard]] std::string replaced(std::string_view text, char from, char to);
/// A field of a record: the bytes cut at `width` or filled with blanks up to it.
[[nodiscard]] std::string fitted(std::string_view bytes, std::size_t width);

} // namespace velmora::runtime
