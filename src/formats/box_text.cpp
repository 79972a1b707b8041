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

} // namespace velmora
