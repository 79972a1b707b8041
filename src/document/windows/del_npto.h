// The window del_Npto as plain data: what it shows and what the user typed. The logic reads and
// writes it; the window shows it when it gets time and writes back what was typed before it calls a
// handler.
#pragma once

#include <cstdint>
#include <string>

namespace velmora {

struct DelNptoWindow {
    std::int32_t MaxDel = 0; ///< points that may go
    std::string Txt_Numpoints2del, Txt_JumpPoints;
    std::string Lbl_Maxpoints;
};

namespace state {
extern DelNptoWindow& del_Npto;
}

} // namespace velmora
