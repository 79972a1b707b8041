// The window Compensa as plain data: what it shows and what the user typed. The logic reads and
// writes it; the window shows it when it gets time and writes back what was typed before it calls a
// handler.
#pragma once

#include <string>

namespace velmora {

struct CompensaWindow {
    std::string Txt_merma;
    bool cmd_ok_enabled = false;
};

namespace state {
extern CompensaWindow& Compensa;
}

} // namespace velmora
