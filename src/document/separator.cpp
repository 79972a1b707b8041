#include "document/separator.h"

#include "document/session.h"
#include "runtime/text.h"

namespace velmora {

std::string_view to_machine_separator(std::string_view text, std::string& room) {
    const char foreign = session.SepDecimal == ',' ? '.' : ',';
    if (text.find(foreign) == std::string_view::npos)
        return text;
    room = runtime::replaced(text, foreign, session.SepDecimal);
    return room;
}

std::string_view point_to_machine_separator(std::string_view text, std::string& room) {
    return session.SepDecimal == ',' ? to_machine_separator(text, room) : text;
}

} // namespace velmora
