#include "import/dxf_tags.h"

#include "import/number_text.h"
#include "import/text.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <cmath>
#include <limits>

namespace velmora::imports {

namespace {

using namespace std::literals;

constexpr std::string_view binary_mark = "AutoCAD Binary DXF\r\n\x1a\0"sv;
constexpr int comment = 999;
constexpr char end_of_text = 26;

enum class Value : std::uint8_t { text, real, int8, int16, int32, int64, chunk };

struct Range {
    int last;
    Value value;
};

/// By group code: the first range whose last code is not below it.
constexpr Range ranges[] = {
    {9, Value::text},     {59, Value::real},    {79, Value::int16},  {99, Value::int32},
    {109, Value::text},   {149, Value::real},   {169, Value::int64}, {179, Value::int16},
    {209, Value::text},   {239, Value::real},   {269, Value::text},  {289, Value::int16},
    {299, Value::int8},   {309, Value::text},   {319, Value::chunk}, {369, Value::text},
    {389, Value::int16},  {399, Value::text},   {409, Value::int16}, {419, Value::text},
    {429, Value::int32},  {439, Value::text},   {459, Value::int32}, {469, Value::real},
    {1003, Value::text},  {1004, Value::chunk}, {1009, Value::text}, {1059, Value::real},
    {1070, Value::int16}, {1071, Value::int32},
};

Value value_of(int code) {
    const auto* range =
        std::ranges::find_if(ranges, [&](const Range& r) { return code <= r.last; });
    return range != std::end(ranges) ? range->value : Value::text;
}

std::size_t bytes_of(Value value) {
    switch (value) {
    case Value::int8:
        return 1;
    case Value::int16:
        return 2;
    case Value::int32:
        return 4;
    default:
        return 8;
    }
}

double whole_number(std::uint64_t bits, std::size_t bytes) {
    const auto unused = static_cast<int>(64 - 8 * bytes);
    return static_cast<double>(static_cast<std::int64_t>(bits << unused) >> unused);
}

std::optional<int> code_of(std::string_view line) {
    int code = 0;
    const char* end = line.data() + line.size();
    const auto [stop, fault] = std::from_chars(line.data(), end, code);
    const bool whole = fault == std::errc() && stop == end && code >= -10 && code <= 1100;
    return whole ? std::optional(code) : std::nullopt;
}

} // namespace

std::optional<double> DxfTag::real() const {
    if (!binary)
        return number_of(text);
    const bool fits = std::abs(number) <= largest_number;
    return fits ? std::optional(number) : std::nullopt;
}

int DxfTag::whole() const {
    const double value = real().value_or(0);
    return std::abs(value) < std::numeric_limits<int>::max() ? static_cast<int>(value) : 0;
}

bool is_binary_dxf(std::string_view bytes) {
    return bytes.starts_with(binary_mark);
}

DxfTags::DxfTags(std::string_view bytes, Report& report)
    : rest_(bytes), report_(report), binary_(is_binary_dxf(bytes)) {
    if (binary_) {
        rest_.remove_prefix(binary_mark.size());
        // The first tag is "0 SECTION": one zero in front of its name, or two.
        wide_codes_ = !(rest_.size() > 1 && rest_[0] == '\0' && rest_[1] != '\0');
    } else if (rest_.find('\n') == std::string_view::npos) {
        line_end_ = '\r';
    }
}

bool DxfTags::next(DxfTag& tag) {
    do {
        if (ended_ || !(binary_ ? next_of_binary(tag) : next_of_text(tag))) {
            end(false);
            return false;
        }
    } while (tag.code == comment);
    if (tag.code == 0 && tag.text == "EOF") {
        end(true);
        return false;
    }
    return true;
}

void DxfTags::end(bool marked) {
    if (ended_)
        return;
    ended_ = true;
    if (!marked)
        report_.add(Fact::ends_early, line_);
    else if (!trimmed(rest_.substr(0, rest_.find(end_of_text))).empty())
        report_.add(Fact::behind_the_end, line_ + 1);
}

bool DxfTags::take_line(std::string_view& line) {
    if (rest_.empty())
        return false;
    const std::size_t end = std::min(rest_.find(line_end_), rest_.size());
    line = trimmed(rest_.substr(0, end));
    rest_.remove_prefix(std::min(end + 1, rest_.size()));
    ++line_;
    return true;
}

bool DxfTags::next_of_text(DxfTag& tag) {
    std::string_view line;
    std::optional<int> code;
    while (!code) {
        if (!take_line(line))
            return false;
        code = code_of(line);
        if (!code && !line.empty())
            report_.add(Fact::stray_line, line_, line);
    }
    tag.code = *code;
    tag.line = line_;
    return take_line(tag.text);
}

std::optional<std::uint64_t> DxfTags::take_bytes(std::size_t count) {
    if (rest_.size() < count)
        return {};
    std::uint64_t bits = 0;
    for (std::size_t i = count; i-- > 0;)
        bits = bits << 8 | static_cast<unsigned char>(rest_[i]);
    rest_.remove_prefix(count);
    return bits;
}

std::optional<int> DxfTags::take_code() {
    auto code = take_bytes(wide_codes_ ? 2 : 1);
    if (code && !wide_codes_ && *code == 255)
        code = take_bytes(2);
    return code ? std::optional(static_cast<int>(*code)) : std::nullopt;
}

bool DxfTags::next_of_binary(DxfTag& tag) {
    const auto code = take_code();
    if (!code || *code > 1071)
        return false;
    tag = {.code = *code, .line = ++line_, .text = {}, .number = 0, .binary = false};
    return take_value(tag);
}

bool DxfTags::take_value(DxfTag& tag) {
    const Value value = value_of(tag.code);
    if (value == Value::text)
        return take_text(tag);
    if (value == Value::chunk)
        return take_chunk(tag);
    const std::size_t count = bytes_of(value);
    const auto bits = take_bytes(count);
    if (!bits)
        return false;
    tag.binary = true;
    tag.number = value == Value::real ? std::bit_cast<double>(*bits) : whole_number(*bits, count);
    return true;
}

bool DxfTags::take_text(DxfTag& tag) {
    const std::size_t end = rest_.find('\0');
    if (end == std::string_view::npos)
        return false;
    tag.text = rest_.substr(0, end);
    rest_.remove_prefix(end + 1);
    return true;
}

bool DxfTags::take_chunk(DxfTag& tag) {
    const auto size = take_bytes(1);
    if (!size || rest_.size() < *size)
        return false;
    tag.text = rest_.substr(0, *size);
    rest_.remove_prefix(*size);
    return true;
}

} // namespace velmora::imports
