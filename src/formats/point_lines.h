// Points written as text, line by line: what makes a line a point, where it is cut, how its two
// numbers come into an outline.
#pragma once

#include "document/forma.h"
#include "formats/coordinate_limit.h"
#include "formats/reader_support.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace velmora {

/// The texts of a point's two coordinates.
struct PointText {
    std::string_view X;
    std::string_view Y;
};

/// The text begins with "-" or a digit.
[[nodiscard]] bool begins_like_number(std::string_view text);

/// The two texts of a free-text line, cut at its first blank, with the machine's separator; nothing
/// for a line that is skipped. They look into `line` or into `room`.
[[nodiscard]] std::optional<PointText> point_of_line(std::string_view line, std::string& room);

/// The line is no such line that is skipped.
[[nodiscard]] bool is_point_line(std::string_view line);

/// Grows the outline to index `count`, stores the two numbers there divided by EscalaCarga, and
/// counts the point when the limit admits it; false otherwise. A text that fails raises 13 or 6
/// with the point in the array, zero or with its X alone, and not counted.
[[nodiscard]] bool take_point(const PointText& text, Array<Pto>& points, std::int32_t& count,
                              CoordinateLimit& limit);

} // namespace velmora
