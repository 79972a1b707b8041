// A text as rows of numbers and lines of words: what every table of coordinates is made of.
#pragma once

#include "import/report.h"

#include <cstdint>
#include <span>
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
    std::uint32_t first = 0;  ///< of its values
    std::uint8_t columns = 0;
    LineKind kind = LineKind::words;
};

/// Lines of blanks do not stand in it. The text has to outlive it.
class NumberRows {
  public:
    NumberRows(std::string_view text, Report& report);

    [[nodiscard]] const std::vector<TextLine>& lines() const { return lines_; }
    [[nodiscard]] std::span<const double> values(const TextLine& line) const {
        return std::span(values_).subspan(line.first, line.columns);
    }
    /// The line as it stands in the text.
    [[nodiscard]] std::string_view text(const TextLine& line) const;
    /// The number of columns that most rows have; 0 where there is no row.
    [[nodiscard]] std::size_t columns() const { return columns_; }

  private:
    void read_line(std::string_view line, std::size_t number);
    void find_columns();

    std::vector<TextLine> lines_;
    std::vector<double> values_;
    std::vector<std::uint32_t> starts_; ///< of each line of `lines_` in the text
    std::string_view text_;
    std::size_t columns_ = 0;
    bool comma_is_decimal_ = false;
};

} // namespace velmora::imports
