#include "import/text.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace velmora::imports {

namespace {

constexpr char end_of_text = 26;

std::uint32_t byte_at(std::string_view bytes, std::size_t i) {
    return static_cast<unsigned char>(bytes[i]);
}

void put_utf8(std::string& text, std::uint32_t c) {
    const auto put = [&](std::uint32_t byte) {
        text += static_cast<char>(byte);
    };
    if (c < 0x80)
        return put(c);
    if (c < 0x800) {
        put(0xC0 | c >> 6);
        return put(0x80 | (c & 0x3F));
    }
    if (c < 0x10000)
        put(0xE0 | c >> 12);
    else {
        put(0xF0 | c >> 18);
        put(0x80 | (c >> 12 & 0x3F));
    }
    put(0x80 | (c >> 6 & 0x3F));
    put(0x80 | (c & 0x3F));
}

/// The bytes that follow a UTF-8 leading byte; -1 for a byte that leads nothing.
int followers(std::uint32_t lead) {
    if (lead < 0x80)
        return 0;
    if (lead < 0xC2 || lead > 0xF4)
        return -1;
    return lead < 0xE0 ? 1 : lead < 0xF0 ? 2 : 3;
}

/// Most text is ASCII, eight bytes of which are looked at in one.
bool is_ascii_eight(std::string_view bytes, std::size_t i) {
    std::uint64_t eight = 0;
    if (i + sizeof eight > bytes.size())
        return false;
    std::memcpy(&eight, bytes.data() + i, sizeof eight);
    return (eight & 0x8080808080808080U) == 0;
}

bool is_utf8(std::string_view bytes) {
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        while (is_ascii_eight(bytes, i))
            i += 8;
        if (i >= bytes.size())
            return true;
        int left = followers(byte_at(bytes, i));
        if (left < 0)
            return false;
        for (; left > 0; --left) {
            if (++i >= bytes.size() || (byte_at(bytes, i) & 0xC0) != 0x80)
                return false;
        }
    }
    return true;
}

std::string from_latin1(std::string_view bytes) {
    std::string text;
    text.reserve(bytes.size() + bytes.size() / 8);
    for (std::size_t i = 0; i < bytes.size(); ++i)
        put_utf8(text, byte_at(bytes, i));
    return text;
}

std::uint32_t unit_at(std::string_view bytes, std::size_t i, bool big_end_first) {
    const std::uint32_t first = byte_at(bytes, i);
    const std::uint32_t second = byte_at(bytes, i + 1);
    return big_end_first ? first << 8 | second : second << 8 | first;
}

std::string from_utf16(std::string_view bytes, bool big_end_first) {
    std::string text;
    text.reserve(bytes.size());
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
        std::uint32_t c = unit_at(bytes, i, big_end_first);
        if (c >= 0xD800 && c < 0xDC00 && i + 3 < bytes.size()) {
            const std::uint32_t low = unit_at(bytes, i + 2, big_end_first);
            if (low >= 0xDC00 && low < 0xE000) {
                c = 0x10000 + ((c - 0xD800) << 10) + (low - 0xDC00);
                i += 2;
            }
        }
        put_utf8(text, c >= 0xD800 && c < 0xE000 ? 0xFFFD : c);
    }
    return text;
}

/// NULs at every second place of the start, from place `from` on.
bool has_nuls_at(std::string_view bytes, std::size_t from) {
    const std::size_t end = std::min<std::size_t>(bytes.size(), 64);
    for (std::size_t i = from; i < end; i += 2) {
        if (bytes[i] != '\0' || (i + 1 - 2 * from < end && bytes[i + 1 - 2 * from] == '\0'))
            return false;
    }
    return end >= 4;
}

bool is_utf16(std::string_view bytes, bool big_end_first) {
    const std::string_view mark = big_end_first ? "\xFE\xFF" : "\xFF\xFE";
    return bytes.starts_with(mark) || has_nuls_at(bytes, big_end_first ? 0 : 1);
}

} // namespace

std::string_view decoded(std::string_view bytes, std::string& storage, Report& report) {
    for (const bool big_end_first : {false, true}) {
        if (!is_utf16(bytes, big_end_first))
            continue;
        report.add(Fact::utf16, 0);
        storage = from_utf16(bytes, big_end_first);
        const std::string_view text = storage;
        return text.starts_with("\xEF\xBB\xBF") ? text.substr(3) : text;
    }
    if (bytes.starts_with("\xEF\xBB\xBF"))
        bytes.remove_prefix(3);
    if (is_utf8(bytes))
        return bytes;
    report.add(Fact::latin1, 0);
    storage = from_latin1(bytes);
    return storage;
}

std::string_view before_end_mark(std::string_view text, Report& report) {
    const auto end = text.find(end_of_text);
    if (end == std::string_view::npos)
        return text;
    report.add(Fact::end_mark, 0);
    return text.substr(0, end);
}

bool is_blank(char c) {
    return c == ' ' || (c >= '\t' && c <= '\r') || c == '\0';
}

bool is_digit(char c) {
    return c >= '0' && c <= '9';
}

bool is_letter(char c) {
    return capital(c) >= 'A' && capital(c) <= 'Z';
}

char capital(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

bool same_word(std::string_view a, std::string_view b) {
    return std::ranges::equal(a, b, {}, capital, capital);
}

std::string_view trimmed(std::string_view text) {
    while (!text.empty() && is_blank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && is_blank(text.back()))
        text.remove_suffix(1);
    return text;
}

bool Lines::next(std::string_view& line) {
    if (rest_.empty())
        return false;
    ++number_;
    const std::size_t end = std::min(rest_.find_first_of("\r\n"), rest_.size());
    line = rest_.substr(0, end);
    rest_.remove_prefix(end);
    if (rest_.starts_with("\r\n"))
        rest_.remove_prefix(2);
    else if (!rest_.empty())
        rest_.remove_prefix(1);
    return true;
}

} // namespace velmora::imports
