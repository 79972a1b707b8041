#include "import/number_rows.h"

#include "import/number_text.h"
#include "import/text.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace velmora::imports {

namespace {

constexpr double parting_number = 999;

bool separates(char c, bool comma_is_decimal) {
    return is_blank(c) || c == ';' || (c == ',' && !comma_is_decimal) || c == '(' || c == ')' ||
           c == '"';
}

/// What separates two tokens at most once: two of them enclose an empty cell.
std::string_view take_token(std::string_view& line, bool comma_is_decimal) {
    while (!line.empty() && separates(line.front(), comma_is_decimal))
        line.remove_prefix(1);
    std::size_t end = 0;
    while (end < line.size() && !separates(line[end], comma_is_decimal))
        ++end;
    const std::string_view token = line.substr(0, end);
    line.remove_prefix(end);
    return token;
}

std::string_view without_comment(std::string_view line) {
    return line.substr(0, std::min({line.find('!'), line.find('#'), line.find("//")}));
}

bool is_comma_number(std::string_view token) {
    return std::ranges::count(token, ',') == 1 && number_with_comma(token);
}

/// Two numbers with decimal commas, and no more.
bool is_comma_pair(std::string_view line) {
    const std::string_view first = take_token(line, true);
    const std::string_view second = take_token(line, true);
    return is_comma_number(first) && is_comma_number(second) && take_token(line, true).empty();
}

bool has_decimal_commas(std::string_view text) {
    std::size_t lines_with_text = 0;
    std::size_t pairs = 0;
    std::string_view line;
    for (Lines lines(text); lines.next(line);) {
        lines_with_text += trimmed(line).empty() ? 0 : 1;
        pairs += line.find(',') != std::string_view::npos && is_comma_pair(line) ? 1 : 0;
    }
    return pairs * 3 > lines_with_text;
}

} // namespace

NumberRows::NumberRows(std::string_view text, Report& report)
    : text_(text), comma_is_decimal_(has_decimal_commas(text)) {
    if (comma_is_decimal_)
        report.add(Fact::decimal_comma, 0);
    // What is not filled of the room takes no memory; growing would take twice as much.
    lines_.reserve(1 + static_cast<std::size_t>(std::max(std::ranges::count(text, '\n'),
                                                         std::ranges::count(text, '\r'))));
    Lines lines(text);
    for (std::string_view line; lines.next(line);)
        read_line(line, lines.number());
    find_columns();
}

NumberRow NumberRows::row_of(std::string_view line) const {
    std::string_view rest = trimmed(without_comment(line));
    NumberRow row;
    while (row.numeric) {
        const std::string_view token = take_token(rest, comma_is_decimal_);
        if (token.empty())
            break;
        const auto value = comma_is_decimal_ && token.find(',') != std::string_view::npos
                               ? number_with_comma(token)
                               : number_of(token);
        row.numeric = value && row.columns < row.values.size();
        if (row.numeric)
            row.values[row.columns++] = *value;
    }
    return row;
}

void NumberRows::read_line(std::string_view line, std::size_t number) {
    if (trimmed(line).empty())
        return;
    TextLine read{.number = static_cast<std::uint32_t>(number),
                  .start = static_cast<std::uint32_t>(line.data() - text_.data())};
    if (trimmed(without_comment(line)).empty())
        read.kind = LineKind::comment;
    const NumberRow row = row_of(line);
    if (row.numeric && row.columns >= 2) {
        const bool parts =
            row.columns == 2 && row.values[0] == parting_number && row.values[1] == parting_number;
        read.kind = parts ? LineKind::parting : LineKind::row;
        read.columns = static_cast<std::uint8_t>(row.columns);
    }
    lines_.push_back(read);
}

void NumberRows::find_columns() {
    std::array<std::size_t, NumberRow::most_columns + 1> counts{};
    for (const TextLine& line : lines_) {
        if (line.kind == LineKind::row)
            ++counts[line.columns];
    }
    const auto most = std::ranges::max_element(counts);
    rows_ = *most;
    if (rows_ > 0)
        columns_ = static_cast<std::size_t>(most - counts.begin());
    for (TextLine& line : lines_) {
        if (line.kind == LineKind::row && line.columns != columns_)
            line.kind = LineKind::row_of_other;
    }
}

std::string_view NumberRows::text(const TextLine& line) const {
    const std::string_view rest = text_.substr(line.start);
    return trimmed(rest.substr(0, rest.find_first_of("\r\n")));
}

} // namespace velmora::imports
