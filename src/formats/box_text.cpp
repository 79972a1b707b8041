#include "formats/box_text.h"

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

std::string without_control_characters(std::string_view text) {
    constexpr unsigned char delete_sign = 0x7F;
    constexpr unsigned char second_set = 0xC2; // before 80 to 9F: the controls after ASCII
    std::string result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        const auto next = static_cast<unsigned char>(i + 1 < text.size() ? text[i + 1] : 0);
        const bool pair = byte == second_set && next >= 0x80 && next < 0xA0;
        result += pair || byte < ' ' || byte == delete_sign ? ' ' : text[i];
        i += pair ? 1 : 0;
    }
    return result;
}

} // namespace velmora
