#include "formats/box_text.h"

#include <array>
#include <charconv>

namespace velmora {

std::string joined_by_blanks(std::initializer_list<std::string_view> pieces) {
    std::string text;
    bool first = true;
    for (const std::string_view piece : pieces) {
        if (!first)
            text += ' ';
        text += piece;
        first = false;
    }
    return text;
}

void show_count(std::string& box, std::int64_t count) {
    std::array<char, 24> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), count).ptr;
    box.assign(digits.data(), end);
}

} // namespace velmora
