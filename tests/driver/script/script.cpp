#include "script/script.h"

#include <algorithm>

namespace velmora::driver {

namespace {

bool is_action(std::string_view line) {
    const auto first = line.find_first_not_of(" \t");
    return first != std::string_view::npos && line[first] != '#';
}

std::string_view take_line(std::string_view& text) {
    const auto end = std::min(text.find('\n'), text.size());
    std::string_view line = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    if (line.ends_with('\r'))
        line.remove_suffix(1);
    return line;
}

} // namespace

std::vector<ScriptLine> parse_script(std::string_view text) {
    constexpr std::string_view byte_order_mark = "\xEF\xBB\xBF";
    if (text.starts_with(byte_order_mark))
        text.remove_prefix(byte_order_mark.size());
    std::vector<ScriptLine> lines;
    for (int number = 1; !text.empty(); ++number) {
        const std::string_view line = take_line(text);
        if (is_action(line))
            lines.push_back({number, std::string(line)});
    }
    return lines;
}

} // namespace velmora::driver
