// A text as rows of numbers and lines of words: what every table of coordinates is made of.
#pragma once

#include "import/report.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace velmora::imports {

enum class LineKind : std::uint8_t {
    row,         ///< two numbers or more and nothing else
    words,       ///< anything else but blanks
    comment,     ///< nothing in front of its comment mark
    parting,     ///< 999.0 999.0, between the elements of one section
    row_of_other ///< a row of another number of columns than most
};

struct TextLine {
    std::uint32_t number = 0; ///< of the line, from 1
    std::uint32_t start = 0;  ///< of the line in the text
    std::uint8_t columns = 0;
    LineKind kind = LineKind::words;
};

struct NumberRow {
    static constexpr std::size_t most_columns = 16;
    std::array<double, most_columns> values;
    std::size_t columns = 0;
    bool numeric = true; ///< nothing else stands in the line
};

/// Lines of blanks are left out. The text has to outlive it; the numbers stay there, since a
/// table of short rows holds many times its size in numbers.
class NumberRows {
  public:
    NumberRows(std::string_view text, Report& report);

    [[nodiscard]] const std::vector<TextLine>& lines() const { return lines_; }
    [[nodiscard]] NumberRow values(const TextLine& line) const { return row_of(text(line)); }
    /// The line as it is in the text.
    [[nodiscard]] std::string_view text(const TextLine& line) const;
    /// The number of columns that most rows have; 0 where there is no row.
    [[nodiscard]] std::size_t columns() const { return columns_; }
    /// How many lines are rows of that many.
    [[nodiscard]] std::size_t rows() const { return rows_; }

  private:
    [[nodiscard]] NumberRow row_of(std::string_view line) const;
    void read_line(std::string_view line, std::size_t number);
    void find_columns();

    std::vector<TextLine> lines_;
    std::string_view text_;
    std::size_t columns_ = 0;
    std::size_t rows_ = 0;
    bool comma_is_decimal_ = false;
};

} // namespace velmora::imports
