// The window New_Dat as plain data: what it shows and what the user typed. The logic reads and
// writes it; the window shows it when it gets time and writes back what was typed before it calls a
// handler.
#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace velmora {

struct NewDatWindow {
    bool SSOpt_predef = true; ///< else SSOpt_create
    bool frm_shapes_enabled = true;
    bool Frm_Create_enabled = false;
    bool cmd_ok_enabled = false;
    std::array<bool, 3> Picture1{}; ///< the tile that looks chosen
    std::string Txt_Shape;
    std::array<bool, 8> Option{}; ///< Option1 to Option8
    std::int16_t shape = 0;       ///< the tile that was clicked: 0 square, 1 triangle, 2 circle
    std::int32_t circle_points = 0;
};

namespace state {
extern NewDatWindow& New_Dat;
}

} // namespace velmora
