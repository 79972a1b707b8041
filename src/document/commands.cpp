#include "document/handlers.h"
#include "document/refresh.h"

namespace velmora {

// No test for a shape here, on purpose: the list of an empty document shows its one record.
void mnu_update_coords() {
    Carga_List_Coords("UPDATE");
}

} // namespace velmora
