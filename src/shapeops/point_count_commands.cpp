// The commands that open the windows for the number of points.
#include "document/handlers.h"
#include "document/session.h"
#include "platform/platform.h"
#include "platform/windows.h"
#include "services/message_codes.h"
#include "services/messages.h"

namespace velmora {

void Delete_N_Ptos() {
    if (Forma.Pto.upper() < 3)
        MuestraMensaje(mensaje::no_more_deletions);
    else
        platform().windows.show_modal("del_Npto");
}

void Mult_Points_Shape() {
    if (!hay_forma())
        MuestraMensaje(mensaje::no_shape);
    else
        platform().windows.show_modal("Mult_Ptos");
}

} // namespace velmora
