// What travels with the outline: its file, the selected point, the counts and figures shown.
#pragma once

#include "document/flag.h"

#include <cstdint>
#include <string>

namespace velmora {

struct DocumentState {
    std::string FileName;
    std::string LastDir;
    std::string DefExt = ".dat";
    Flag LoadOk = 0;
    std::int32_t PtoSel = 0; ///< -1 none
    std::int32_t PtoSelAnt = -1;
    std::int32_t TotalPtos = 0;
    std::int32_t TotalSinc = 0;
    std::int32_t UltimoPto = 0;
    std::int32_t PtosSuprimidos = 0;
    double OrigX = 0, OrigY = 0;
    double Longitud = 0, Altura = 0;
};

namespace state {
extern DocumentState& document;
}

} // namespace velmora
