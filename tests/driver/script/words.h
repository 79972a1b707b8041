// A line of a script as words, and words as a transcript writes them. Both follow one rule: a word
// with blanks or quotes stands in double quotes, with \" \\ \n \t and \r inside.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace velmora::driver {

/// The words of a line, unquoted. A ScriptFault for a quote that is not closed, a quote inside a
/// word, or an escape that is not known.
[[nodiscard]] std::vector<std::string> split_words(std::string_view line);

/// The text as one word: as it stands, or quoted where it is empty or has blanks, quotes or control
/// characters.
[[nodiscard]] std::string word_text(std::string_view text);
/// The text in quotes whatever it holds.
[[nodiscard]] std::string quoted(std::string_view text);
/// Bytes of a file in quotes: what lies above 126 and control bytes as \xNN, line ends and tabs as
/// escapes.
[[nodiscard]] std::string quoted_bytes(std::string_view bytes);

} // namespace velmora::driver
