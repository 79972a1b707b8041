#include "runtime/text.h"
#include "runtime/error.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace velmora::runtime {
namespace {

constexpr char32_t no_character = 0xFFFFFFFF;

/// The characters of the bytes 128 to 159; the five that Windows-1252 leaves open stand for the
/// control characters of the same number, so that every byte comes back.
constexpr std::array<char32_t, 32> letters_128 = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

struct Character {
    char32_t code; ///< no_character for a byte that is not UTF-8
    std::size_t size;
};

std::size_t sequence_size(unsigned char lead) {
    if (lead >= 0xC2 && lead <= 0xDF)
        return 2;
    if (lead >= 0xE0 && lead <= 0xEF)
        return 3;
    if (lead >= 0xF0 && lead <= 0xF4)
        return 4;
    return 1;
}

bool is_scalar(char32_t code, std::size_t size) {
    constexpr std::array<char32_t, 5> smallest = {0, 0, 0x80, 0x800, 0x10000};
    const bool surrogate = code >= 0xD800 && code <= 0xDFFF;
    return code >= smallest[size] && code <= 0x10FFFF && !surrogate;
}

/// The character at the start of a text that is not empty.
Character first_of(std::string_view text) {
    const auto lead = static_cast<unsigned char>(text[0]);
    if (lead < 0x80)
        return {lead, 1};
    const std::size_t size = sequence_size(lead);
    if (size == 1 || size > text.size())
        return {no_character, 1};
    char32_t code = lead & (0xFFU >> (size + 1));
    for (std::size_t i = 1; i < size; ++i) {
        const auto next = static_cast<unsigned char>(text[i]);
        if ((next & 0xC0U) != 0x80U)
            return {no_character, 1};
        code = code << 6U | (next & 0x3FU);
    }
    if (!is_scalar(code, size))
        return {no_character, 1};
    return {code, size};
}

void append_utf8(std::string& text, char32_t code) {
    const auto add = [&text](char32_t byte) {
        text += static_cast<char>(byte);
    };
    if (code < 0x80) {
        add(code);
    } else if (code < 0x800) {
        add(0xC0 | code >> 6U);
        add(0x80 | (code & 0x3F));
    } else {
        add(0xE0 | code >> 12U);
        add(0x80 | (code >> 6U & 0x3F));
        add(0x80 | (code & 0x3F));
    }
}

char32_t capital(char32_t code) {
    const bool ascii = code >= 'a' && code <= 'z';
    const bool latin = code >= 0xE0 && code <= 0xFE && code != 0xF7;
    if (ascii || latin)
        return code - 0x20;
    if (code == 0xFF)
        return 0x178;
    if (code == 0x153 || code == 0x161 || code == 0x17E)
        return code - 1;
    return code;
}

char byte_of(char32_t code) {
    const bool same = code < 0x80 || (code >= 0xA0 && code <= 0xFF);
    if (same)
        return static_cast<char>(code);
    const auto* const found = std::find(letters_128.begin(), letters_128.end(), code);
    return found == letters_128.end() ? '?'
                                      : static_cast<char>(0x80 + (found - letters_128.begin()));
}

/// Bytes of the first n characters, all of them when there are fewer.
std::size_t bytes_of(std::string_view text, std::size_t n) {
    std::size_t at = 0;
    for (; n > 0 && at < text.size(); --n)
        at += first_of(text.substr(at)).size;
    return at;
}

std::size_t count_of(int n) {
    if (n < 0)
        raise(error::invalid_call);
    return static_cast<std::size_t>(n);
}

} // namespace

std::string_view Trim(std::string_view text) {
    const auto first = text.find_first_not_of(' ');
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string UCase(std::string_view text) {
    std::string capitals;
    capitals.reserve(text.size());
    while (!text.empty()) {
        const Character character = first_of(text);
        const char32_t upper = capital(character.code);
        if (upper == character.code)
            capitals += text.substr(0, character.size);
        else
            append_utf8(capitals, upper);
        text.remove_prefix(character.size);
    }
    return capitals;
}

std::size_t Len(std::string_view text) {
    std::size_t count = 0;
    for (; !text.empty(); ++count)
        text.remove_prefix(first_of(text).size);
    return count;
}

std::string Left(std::string_view text, int n) {
    return std::string(text.substr(0, bytes_of(text, count_of(n))));
}

std::string Right(std::string_view text, int n) {
    const std::size_t wanted = count_of(n);
    const std::size_t length = Len(text);
    return std::string(text.substr(wanted < length ? bytes_of(text, length - wanted) : 0));
}

std::string from_1252(std::string_view bytes) {
    std::string text;
    text.reserve(bytes.size());
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        const bool own = byte >= 0x80 && byte < 0xA0;
        append_utf8(text, own ? letters_128[byte - 0x80U] : byte);
    }
    return text;
}

std::string to_1252(std::string_view utf8) {
    std::string bytes;
    bytes.reserve(utf8.size());
    while (!utf8.empty()) {
        const Character character = first_of(utf8);
        bytes += byte_of(character.code);
        utf8.remove_prefix(character.size);
    }
    return bytes;
}

std::string replaced(std::string_view text, char from, char to) {
    std::string result(text);
    std::replace(result.begin(), result.end(), from, to);
    return result;
}

std::string fitted(std::string_view bytes, std::size_t width) {
    std::string field(bytes.substr(0, width));
    field.resize(width, ' ');
    return field;
}

} // namespace velmora::runtime
