// The fixed record of the DAT files that the cutter's software reads:
//
//   offset  size  content
//        0    21  field 1, left-justified, blank-padded
//       21    21  field 2, likewise
//       42     2  CR LF
//
// Fields are Windows-1252, one byte a character.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace velmora {

/// One record, by value: what the file table hands out does not outlive the windows' turn.
class FixedRecord {
  public:
    static constexpr int length = 44;
    static constexpr std::size_t field_length = 21;

    /// A record as read, `length` bytes.
    explicit FixedRecord(std::string_view bytes);
    /// A record to write: the fields padded, or cut where they are longer.
    FixedRecord(std::string_view field1, std::string_view field2);

    [[nodiscard]] std::string_view bytes() const { return {bytes_.data(), bytes_.size()}; }
    [[nodiscard]] std::string_view field1() const { return bytes().substr(0, field_length); }
    [[nodiscard]] std::string_view field2() const {
        return bytes().substr(field_length, field_length);
    }
    /// Nothing but blanks in both fields.
    [[nodiscard]] bool blank() const;
    [[nodiscard]] bool ends_in_line_feed() const { return bytes_.back() == '\n'; }

  private:
    std::array<char, length> bytes_{};
};

/// The marker in field 1 that ends the outline, as it is written, and the part that is looked for.
inline constexpr std::string_view sync_section_title = "Puntos Sincronismo";
inline constexpr std::string_view sync_section_mark = "Sincronismo";

} // namespace velmora
