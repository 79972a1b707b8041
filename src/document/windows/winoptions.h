// The window winoptions as plain data: what it shows and what the user typed. The logic reads and
// writes it; the window shows it when it gets time and writes back what was typed before it calls a
// handler.
#pragma once

#include <string>

namespace velmora {

struct WinOptions {
    std::string TxtPutArc, TxtPutCircle, TxtPrecision, Txt_zoom;
    bool ChkPtos = true, ChkPtosCtrl = true, ChkCoords = true;
    bool ChkDATSinc = true, ChkSCR = false, Chk_DATPerfil = false;
    bool chk_optimize = true, chk_Redim_Capture = true;
    bool chk_winoptions = false; ///< pinned
    bool rolled_up = false;
};

namespace state {
extern WinOptions& winoptions;
}

} // namespace velmora
