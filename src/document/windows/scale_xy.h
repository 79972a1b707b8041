// The window Scale_xy as plain data: what it shows and what the user typed. The logic reads and
// writes it; the window shows it when it gets time and writes back what was typed before it calls a
// handler.
#pragma once

#include <string>

namespace velmora {

struct ScaleXyWindow {
    bool Opt_fixed = true; ///< else Opt_percent
    bool frm_fixed_enabled = true;
    bool frm_percent_enabled = false;
    std::string txt_fixed_x, txt_fixed_y, txt_percent_x, txt_percent_y;
    bool cmd_ok_enabled = false;
};

namespace state {
extern ScaleXyWindow& Scale_xy;
}

} // namespace velmora
