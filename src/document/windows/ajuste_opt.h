// The window ajuste_opt as plain data: what it shows and what the user typed. The logic reads and
// writes it; the window shows it when it gets time and writes back what was typed before it calls a
// handler.
#pragma once

#include <string>

namespace velmora {

struct AjusteOptWindow {
    std::string txt_X, txt_Y, txt_Z;
    bool cmb_ok_enabled = false;
};

namespace state {
extern AjusteOptWindow& ajuste_opt;
}

} // namespace velmora
