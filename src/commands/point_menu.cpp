// The commands of the point menu OPT_PTO that place the shape by its selected point, and open the
// window that takes points out. Without a selection the former do nothing and say nothing.
#include "commands/handlers.h"
#include "document/feedback.h"
#include "document/flag.h"
#include "document/forma.h"
#include "document/pointer_shape.h"
#include "document/refresh.h"
#include "document/selection.h"
#include "document/state/document.h"
#include "document/state/view.h"
#include "document/windows/velmora.h"
#include "platform/platform.h"
#include "platform/program_windows.h"
#include "runtime/numbers.h"
#include "services/message_codes.h"
#include "services/messages.h"
#include "shapeops/placing.h"

namespace velmora {

namespace {}

void Delete_N_Ptos() {
    if (Forma.Pto.upper() < 3)
        MuestraMensaje(message::no_more_deletions);
    else
        platform().windows.show_modal("del_Npto");
}

void Rotate() {
    if (!has_selection())
        return;
    const double angle = runtime::Val(
        InputBox(GetMensaje(message::rotation_angle), GetMensaje(message::rotation_title), "0"));
    if (angle == 0)
        return;
    rotate_about(Forma.Pto[state::document.PtoSel], angle);
    Apply_Precision();
    Carga_List_Coords("UPDATE");
    Define_Layout();
    Dibuja_unless_NoRedraw();
}

// Set_00, set_10 and set_x0 leave the list, the figures and the canvas's origin as they were, on
// purpose: a later command refreshes them.
void Set_00() {
    if (!has_selection())
        return;
    translate_to_origin(Forma.Pto[state::document.PtoSel]);
    Dibuja_unless_NoRedraw();
}

void set_10() {
    if (!has_selection())
        return;
    Forma.Pto[state::document.PtoSel].X = 1.0;
    Forma.Pto[state::document.PtoSel].Y = 0.0;
    Dibuja_unless_NoRedraw();
}

void set_x0() {
    if (!has_selection())
        return;
    Forma.Pto[state::document.PtoSel].Y = 0.0;
    Dibuja_unless_NoRedraw();
}

void Move_Shape() {
    if (!has_selection())
        return;
    state::view.MoveShapeMode = True;
    state::Velmora.pic_MousePointer = pointer::up_arrow;
    state::view.DestX = state::view.DestY = 0;
    set_status(GetMensaje(message::pick_new_place));
}

} // namespace velmora
