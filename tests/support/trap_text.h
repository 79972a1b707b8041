// The text of an error box, as show_trap puts it together in Spanish.
#pragma once

#include "runtime/error.h"

#include <sstream>
#include <string>
#include <string_view>

namespace velmora::test {

/// "Error CargaSCR  nº: ", number, the label of the counter, its value.
inline std::string trap_text(std::string_view prefix, int number, std::string_view label,
                             int counter) {
    std::ostringstream text;
    text << prefix << number << "  - Desc: " << error_description(number, 'E') << label << counter;
    return text.str();
}

} // namespace velmora::test
