#include "import/gcode_words.h"

#include "import/number_text.h"
#include "import/text.h"

#include <string>

namespace velmora::imports {

namespace {

/// Without blanks and comments, in capitals.
std::string packed(std::string_view line) {
    std::string text;
    bool in_comment = false;
    for (const char c : line) {
        if (c == ';' && !in_comment)
            break;
        if (c == '(')
            in_comment = true;
        else if (c == ')')
            in_comment = false;
        else if (!in_comment && !is_blank(c))
            text += capital(c);
    }
    return text;
}

} // namespace

GcodeLine gcode_words(std::string_view line, std::vector<GcodeWord>& words) {
    words.clear();
    const std::string text = packed(line);
    std::string_view rest = text;
    if (rest.empty() || rest.front() == '/' || rest.front() == '%')
        return GcodeLine::empty;
    while (!rest.empty()) {
        const char letter = rest.front();
        rest.remove_prefix(1);
        // The number's exponent would be a word of its own.
        const std::size_t end = rest.find_first_not_of("+-.0123456789");
        const std::string_view digits = rest.substr(0, end);
        const auto number = number_of(digits);
        if (!is_letter(letter) || letter == 'O' || !number)
            return GcodeLine::refused;
        rest.remove_prefix(digits.size());
        if (letter != 'N')
            words.push_back({letter, *number});
    }
    return words.empty() ? GcodeLine::empty : GcodeLine::read;
}

} // namespace velmora::imports
