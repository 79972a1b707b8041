#include "cutprep/side.h"

#include "document/state/workbench.h"

namespace velmora {

Side side_of(std::string_view lado) {
    WorkbenchState& sides = state::workbench;
    if (lado == "A")
        return {"A", sides.PtosA, sides.TrabajoA, sides.PtosA2};
    return {"B", sides.PtosB, sides.TrabajoB, sides.PtosB2};
}

} // namespace velmora
