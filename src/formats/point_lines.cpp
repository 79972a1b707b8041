#include "formats/point_lines.h"

#include "document/forma.h"
#include "document/number_text.h"
#include "document/separator.h"
#include "document/state/loading.h"
#include "runtime/text.h"

namespace velmora {

bool begins_like_number(std::string_view text) {
    return !text.empty() && (text[0] == '-' || (text[0] >= '0' && text[0] <= '9'));
}

std::optional<PointText> point_of_line(std::string_view line, std::string& room) {
    const std::string_view trimmed = runtime::Trim(line);
    const std::size_t blank = trimmed.find(' ');
    if (blank == std::string_view::npos || !begins_like_number(trimmed))
        return std::nullopt;
    const std::string_view numbers = to_machine_separator(trimmed, room);
    return PointText{numbers.substr(0, blank), runtime::Trim(numbers.substr(blank))};
}

bool is_point_line(std::string_view line) {
    std::string room;
    return point_of_line(line, room).has_value();
}

bool take_point(const PointText& text, Array<Pto>& points, std::int32_t& count,
                CoordinateLimit& limit) {
    points.redim_keep(count);
    Pto& point = points[count];
    point.X = CDbl(text.X) / state::loading.EscalaCarga;
    point.Y = CDbl(text.Y) / state::loading.EscalaCarga;
    if (!limit.admits(point))
        return false;
    ++count;
    return true;
}

} // namespace velmora
