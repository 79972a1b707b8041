#include "document/separator.h"

#include "document/state/program.h"
#include "runtime/text.h"

namespace velmora {

std::string_view to_machine_separator(std::string_view text, std::string& room) {
    const char foreign = state::program.SepDecimal == ',' ? '.' : ',';
    if (text.find(foreign) == std::string_view::npos)
        return text;
    room = runtime::replaced(text, foreign, state::program.SepDecimal);
    return room;
}

std::string_view point_to_machine_separator(std::string_view text, std::string& room) {
    return state::program.SepDecimal == ',' ? to_machine_separator(text, room) : text;
}

} // namespace velmora
