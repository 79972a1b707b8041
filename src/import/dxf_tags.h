// A DXF file as tags: a group code and its value, from text or from the binary form.
#pragma once

#include "import/report.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace velmora::imports {

struct DxfTag {
    int code = 0;
    std::size_t line = 0;  ///< of the code, from 1; of a binary file the number of the tag
    std::string_view text; ///< as it is, without blanks around it; empty for a binary number
    double number = 0;     ///< of a binary tag
    bool binary = false;

    [[nodiscard]] std::optional<double> real() const;
    /// 0 where there is no number, and for one that no whole number of 32 bits holds.
    [[nodiscard]] int whole() const;
};

/// The 22 bytes that a binary file begins with.
[[nodiscard]] bool is_binary_dxf(std::string_view bytes);

class DxfTags {
  public:
    DxfTags(std::string_view bytes, Report& report);
    /// False at the end of the file, its end mark, or where a binary file breaks off. Comments are
    /// passed over; so is, with a remark, a line that is not a group code where one has to be.
    [[nodiscard]] bool next(DxfTag& tag);

  private:
    [[nodiscard]] bool next_of_text(DxfTag& tag);
    [[nodiscard]] bool next_of_binary(DxfTag& tag);
    [[nodiscard]] bool take_line(std::string_view& line);
    [[nodiscard]] std::optional<std::uint64_t> take_bytes(std::size_t count);
    [[nodiscard]] std::optional<int> take_code();
    [[nodiscard]] bool take_value(DxfTag& tag);
    [[nodiscard]] bool take_text(DxfTag& tag);
    [[nodiscard]] bool take_chunk(DxfTag& tag);
    void end(bool marked);

    std::string_view rest_;
    Report& report_;
    std::size_t line_ = 0;
    char line_end_ = '\n';
    bool binary_ = false;
    bool wide_codes_ = true;
    bool ended_ = false;
};

} // namespace velmora::imports
