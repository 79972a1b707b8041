// The commands on the whole shape. Each keeps its own order of refresh calls, and the toolbar's
// K_INVERT and K_SCALE differ from their menu entries on purpose.
#include "document/handlers.h"
#include "document/refresh.h"
#include "document/session.h"
#include "platform/platform.h"
#include "platform/windows.h"
#include "services/message_codes.h"
#include "services/messages.h"
#include "shapeops/transforms.h"

namespace velmora {

namespace {

/// There is a shape to work on; message 37 otherwise.
bool shape_at_hand() {
    if (hay_forma())
        return true;
    MuestraMensaje(mensaje::no_shape);
    return false;
}

void transform_and_refresh(void (*transform)()) {
    if (!shape_at_hand())
        return;
    Apply_Precision();
    transform();
    Carga_List_Coords("UPDATE");
    Define_Layout();
    Dibuja();
}

} // namespace

void mnu_invert() {
    if (!shape_at_hand())
        return;
    Apply_Precision();
    InvertDat();
    Carga_List_Coords("UPDATE");
    Dibuja();
}

void K_INVERT() {
    transform_and_refresh(InvertDat);
}

void mnu_mirrorh() {
    transform_and_refresh(MirrorHorDat);
}

void mnu_mirrorv() {
    transform_and_refresh(MirrorVerDat);
}

void mnu_positiva() {
    transform_and_refresh(Positivarfrma);
}

void mnu_scale() {
    if (!shape_at_hand())
        return;
    ScaleToUnit();
    Apply_Precision();
    Carga_List_Coords("UPDATE");
    Define_Layout();
    Dibuja();
}

void K_SCALE() {
    if (!shape_at_hand())
        return;
    ScaleToUnit();
    Apply_Precision();
    Carga_List_Coords("UPDATE");
    Dibuja();
}

void mnu_scale_xy() {
    if (shape_at_hand())
        platform().windows.show_modal("Scale_xy");
}

} // namespace velmora
