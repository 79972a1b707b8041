// Bytes as the world writes them to text: marks, UTF-16, Latin-1, all line ends.
#pragma once

#include "import/report.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace velmora::imports {

/// UTF-8 text of the bytes. Text that is UTF-8 already is not copied; any other is put into
/// `storage`, which has to outlive the view.
[[nodiscard]] std::string_view decoded(std::string_view bytes, std::string& storage,
                                       Report& report);
/// The text up to byte 26, which old systems wrote after the last line.
[[nodiscard]] std::string_view before_end_mark(std::string_view text, Report& report);

[[nodiscard]] std::string_view trimmed(std::string_view text);
[[nodiscard]] bool is_blank(char c);
[[nodiscard]] bool is_digit(char c);
/// ASCII letters alone.
[[nodiscard]] bool is_letter(char c);
[[nodiscard]] char capital(char c);
/// The same word, ASCII letters' case aside.
[[nodiscard]] bool same_word(std::string_view a, std::string_view b);

/// The lines of a text, one after another: CR LF, LF, or CR alone.
class Lines {
  public:
    explicit Lines(std::string_view text) : rest_(text) {}
    /// False at the end. A line end after the last line does not begin another.
    [[nodiscard]] bool next(std::string_view& line);
    /// Of the line that `next` gave last, from 1.
    [[nodiscard]] std::size_t number() const { return number_; }

  private:
    std::string_view rest_;
    std::size_t number_ = 0;
};

} // namespace velmora::imports
