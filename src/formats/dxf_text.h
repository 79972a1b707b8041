// A DXF file as the reader sees it: lines in a fixed order, numbers in three ways of reading.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace velmora {

/// File 1, open for input. Every read raises what line_input raises, 62 at the end of the file;
/// numbers raise 13 and 6.
class DxfText {
  public:
    /// A line of the main flow. Valid until the next read, as all lines.
    std::string_view counted_line();
    /// A line inside an entity's pattern, which is not counted, on purpose.
    std::string_view line();
    void skip() { line(); }

    /// Skips a line and takes the next as a coordinate, 15 significant digits.
    [[nodiscard]] double coordinate();
    /// Skips a line and takes the next as a measure of a circle or an arc, by CadenaAReal.
    [[nodiscard]] double measure();
    /// Skips a line and takes the next as an angle, plain text to number.
    [[nodiscard]] double angle();
    /// Skips a line and takes the next as a count or flag, by Val.
    [[nodiscard]] double count();

    /// The line read last ends the section. To be asked before the windows run.
    [[nodiscard]] bool at_section_end() const;
    /// Lines counted so far.
    [[nodiscard]] std::int32_t counted() const { return counted_; }

  private:
    [[nodiscard]] std::string_view number_text();

    std::string_view last_;
    std::string room_;
    std::int32_t counted_ = 0;
    std::int64_t lines_ = 0; ///< all of them
};

} // namespace velmora
