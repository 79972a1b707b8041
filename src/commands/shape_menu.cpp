// The commands of the menu mnu_funcs. Those on the whole shape keep each its own order of refresh
// calls, and the toolbar's K_INVERT and K_SCALE differ from their menu entries on purpose.
#include "canvas/background.h"
#include "canvas/surface.h"
#include "canvas/zoom.h"
#include "commands/handlers.h"
#include "document/refresh.h"
#include "document/state/view.h"
#include "platform/platform.h"
#include "platform/program_windows.h"
#include "services/shape_at_hand.h"
#include "shapeops/scaling.h"
#include "shapeops/transforms.h"

namespace velmora {

namespace {

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

void Mult_Points_Shape() {
    if (shape_at_hand())
        platform().windows.show_modal("Mult_Ptos");
}

void mnu_loadimg() {
    CargaImagen();
}

void mnu_delimg() {
    platform().pic.set_picture("");
    platform().pic.present();
    Dibuja_unless_NoRedraw();
}

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

void mnu_zoom_up() {
    zoom_to(zoom_above(state::view.ZoomFactor));
}

void mnu_zoom_down() {
    if (state::view.ZoomFactor <= 1)
        return;
    zoom_to(zoom_below(state::view.ZoomFactor));
}

// No test for a shape here, on purpose: the list of an empty document shows its one record.
void mnu_update_coords() {
    Carga_List_Coords("UPDATE");
}

} // namespace velmora
