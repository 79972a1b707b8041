#include "document/text_box.h"

namespace velmora {

bool replace_text(std::string& box, std::string_view text) {
    if (box == text)
        return false;
    box = text;
    return true;
}

} // namespace velmora
