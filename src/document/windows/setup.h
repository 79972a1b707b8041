// The window setup as plain data: what it shows and what the user typed. The logic reads and writes
// it; the window shows it when it gets time and writes back what was typed before it calls a
// handler.
#pragma once

#include <cstdint>
#include <string>

namespace velmora {

struct SetupWindow {
    std::string Txt_Def_Dec_Val, Txt_Def_Arc_Val, Txt_Def_Circle_Val, Txt_Def_zoom_Val;
    std::string Cmb_Lang; ///< the name that is chosen
    bool APP_Sound = false;
    bool chk_fit_open = false;
    std::string Idioma; ///< the language when the window was activated, one character
    // Back colours of the labels
    std::uint32_t lblcolor_fondo = 0, lblcolor_ejes = 0, lblcolor_lineas = 0, lblcolor_lineaini = 0,
                  lblcolor_lineados = 0, lblcolor_ptos = 0, lblcolor_ptosinc = 0,
                  lblcolor_ptosel = 0, lblcolor_coords = 0;
    std::uint64_t Test_Pic_draws = 0; ///< grows when the preview is to be drawn again
};

namespace state {
extern SetupWindow& setup;
}

} // namespace velmora
