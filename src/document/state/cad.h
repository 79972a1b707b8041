// The connection to a CAD and the entities of one capture or one DXF load.
#pragma once

#include "document/flag.h"
#include "document/obj_cad.h"

#include <cstdint>
#include <vector>

namespace velmora {

struct CadState {
    Flag AcadOpen = False, AcadDocLoaded = False, SelOrigenActivo = False;
    double CadOrigX = 0, CadOrigY = 0;
    std::vector<double> AcadPunto;               ///< the point as the CAD returned it
    Array<ObjCad> ObjsCad = empty_entity_list(); ///< lives for one capture or one DXF load
    std::int32_t TotalObjs = 0, NLines = 0, NSplines = 0, NLWPolylines = 0, NArcs = 0, NCircles = 0;
};

namespace state {
extern CadState& cad;
}

} // namespace velmora
