// The window Mult_Ptos as plain data: what it shows and what the user typed. The logic reads and
// writes it; the window shows it when it gets time and writes back what was typed before it calls a
// handler.
#pragma once

#include <string>

namespace velmora {

struct MultPtosWindow {
    std::string Combo1; ///< the factor
    std::string Lbl_NPoints, lbl_New_NPoints;
    bool cmd_ok_enabled = false;
};

namespace state {
extern MultPtosWindow& Mult_Ptos;
}

} // namespace velmora
