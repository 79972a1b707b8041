// The window wininfo as plain data: what it shows and what the user typed. The logic reads and
// writes it; the window shows it when it gets time and writes back what was typed before it calls a
// handler.
#pragma once

#include <cstdint>
#include <string>

namespace velmora {

struct WinInfo {
    std::string TxtAcadFile, TxtOpensw, txtAcadVer;
    std::string TxtNArcs = "0", TxtNCircles = "0", TxtNLWPolylines = "0", TxtProcesed = "0",
                TxtNlines = "0", TxtNSplines = "0";
    std::string TxtTotalCtrlPtos = "0", Txt_longitud = "0", Txt_Altura = "0", TxtOrigX = "0",
                TxtOrigY = "0", TxtTotalPtos = "0", TxtPtosSupr = "0";
    bool chk_wininfo = false;        ///< pinned
    std::uint32_t ShpAcadOpen = 255; ///< fill colour: 65280 connected, 255 not
    std::uint32_t ShpAcadDocLoaded = 255;
    bool rolled_up = false;
};

namespace state {
extern WinInfo& wininfo;
}

} // namespace velmora
