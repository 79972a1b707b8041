#include "script/words.h"

#include "script/fault.h"

#include <algorithm>

namespace velmora::driver {

namespace {

constexpr bool is_blank(char c) {
    return c == ' ' || c == '\t';
}

constexpr bool is_control(char c) {
    return static_cast<unsigned char>(c) < 32 || c == 127;
}

char escaped(char letter) {
    switch (letter) {
    case '"':
    case '\\':
        return letter;
    case 'n':
        return '\n';
    case 't':
        return '\t';
    case 'r':
        return '\r';
    default:
        fault(std::string("unknown escape \\") + letter);
    }
}

/// Takes a word behind its opening quote off the line's head, the closing quote too.
std::string take_quoted(std::string_view& line) {
    std::string word;
    while (!line.empty()) {
        const char c = line.front();
        line.remove_prefix(1);
        if (c == '"')
            return word;
        if (c == '\\' && !line.empty()) {
            word += escaped(line.front());
            line.remove_prefix(1);
        } else {
            word += c;
        }
    }
    fault("a quote is not closed");
}

std::string take_plain(std::string_view& line) {
    const auto end = std::ranges::find_if(line, is_blank);
    const auto length = static_cast<std::size_t>(end - line.begin());
    std::string word(line.substr(0, length));
    line.remove_prefix(length);
    if (word.find('"') != std::string::npos)
        fault("a quote inside a word");
    return word;
}

std::string take_word(std::string_view& line) {
    if (line.front() != '"')
        return take_plain(line);
    line.remove_prefix(1);
    std::string word = take_quoted(line);
    if (!line.empty() && !is_blank(line.front()))
        fault("no blank behind a closing quote");
    return word;
}

/// The escape of a character that a quoted word can't hold as it stands; empty for all others.
std::string_view escape_of(char c) {
    switch (c) {
    case '"':
        return "\\\"";
    case '\\':
        return "\\\\";
    case '\n':
        return "\\n";
    case '\t':
        return "\\t";
    case '\r':
        return "\\r";
    default:
        return {};
    }
}

std::string hex_escape(char c) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    const auto byte = static_cast<unsigned char>(c);
    return {'\\', 'x', digits[byte >> 4], digits[byte & 15]};
}

} // namespace

std::vector<std::string> split_words(std::string_view line) {
    std::vector<std::string> words;
    while (true) {
        while (!line.empty() && is_blank(line.front()))
            line.remove_prefix(1);
        if (line.empty())
            return words;
        words.push_back(take_word(line));
    }
}

std::string word_text(std::string_view text) {
    const bool plain = !text.empty() && std::ranges::none_of(text, [](char c) {
        return is_blank(c) || is_control(c) || c == '"';
    });
    return plain ? std::string(text) : quoted(text);
}

std::string quoted(std::string_view text) {
    std::string word = "\"";
    for (const char c : text) {
        const std::string_view escape = escape_of(c);
        if (!escape.empty())
            word += escape;
        else if (is_control(c))
            word += hex_escape(c);
        else
            word += c;
    }
    return word + '"';
}

std::string quoted_bytes(std::string_view bytes) {
    std::string word = "\"";
    for (const char c : bytes) {
        const std::string_view escape = escape_of(c);
        if (!escape.empty())
            word += escape;
        else if (is_control(c) || static_cast<unsigned char>(c) > 126)
            word += hex_escape(c);
        else
            word += c;
    }
    return word + '"';
}

} // namespace velmora::driver
