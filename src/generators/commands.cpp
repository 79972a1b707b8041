// The commands that make a new shape.
#include "document/handlers.h"
#include "document/refresh.h"
#include "document/session.h"
#include "platform/platform.h"
#include "platform/windows.h"

namespace velmora {

// Both steps go by what stands afterwards: a cancelled window refreshes an outline too.
void mnu_newfile() {
    platform().windows.show_modal("New_Dat");
    if (hay_forma()) {
        Apply_Precision();
        Define_Layout();
        Dibuja();
        Carga_List_Coords("NEWFILE");
    }
    if (session.PtosToInsertMode) {
        Define_Layout();
        Dibuja();
        Carga_List_Coords("NEWFILE");
    }
}

void mnu_seltexto() {
    platform().windows.show_modal("seltexto");
}

} // namespace velmora
