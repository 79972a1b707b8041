// The window acerca as plain data: what it shows and what the user typed. The logic reads and
// writes it; the window shows it when it gets time and writes back what was typed before it calls a
// handler.
#pragma once

#include <string>

namespace velmora {

struct AcercaWindow {
    std::string lblVer;
    std::string SSPanel1;
};

namespace state {
extern AcercaWindow& acerca;
}

} // namespace velmora
