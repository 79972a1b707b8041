// The two sides of the adjustment, selectors "A", "B", "A2", "B2", and its three distances.
#pragma once

#include "document/forma.h"

namespace velmora {

struct WorkbenchState {
    Array<Pto> PtosA, PtosB, PtosA2, PtosB2, TrabajoA, TrabajoB;
    double OptX = 0, OptY = 0, OptZ = 0;
};

namespace state {
extern WorkbenchState& workbench;
}

} // namespace velmora
