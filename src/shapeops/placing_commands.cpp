// The point menu's commands that place the shape by its selected point. Without a selection they do
// nothing and say nothing.
#include "document/feedback.h"
#include "document/handlers.h"
#include "document/refresh.h"
#include "document/session.h"
#include "runtime/numbers.h"
#include "services/message_codes.h"
#include "services/messages.h"
#include "shapeops/placing.h"

namespace velmora {

namespace {
constexpr int kUpArrow = 10;
}

void Rotate() {
    if (!hay_seleccion())
        return;
    const double angle = runtime::Val(
        InputBox(GetMensaje(mensaje::rotation_angle), GetMensaje(mensaje::rotation_title), "0"));
    if (angle == 0)
        return;
    rotate_about(Forma.Pto[session.PtoSel], angle);
    Apply_Precision();
    Carga_List_Coords("UPDATE");
    Define_Layout();
    Dibuja_unless_NoRedraw();
}

// Set_00, set_10 and set_x0 leave the list, the figures and the canvas's origin as they were, on
// purpose: a later command refreshes them.
void Set_00() {
    if (!hay_seleccion())
        return;
    translate_to_origin(Forma.Pto[session.PtoSel]);
    Dibuja_unless_NoRedraw();
}

void set_10() {
    if (!hay_seleccion())
        return;
    Forma.Pto[session.PtoSel].X = 1.0;
    Forma.Pto[session.PtoSel].Y = 0.0;
    Dibuja_unless_NoRedraw();
}

void set_x0() {
    if (!hay_seleccion())
        return;
    Forma.Pto[session.PtoSel].Y = 0.0;
    Dibuja_unless_NoRedraw();
}

void Move_Shape() {
    if (!hay_seleccion())
        return;
    session.MoveShapeMode = True;
    session.Velmora.pic_MousePointer = kUpArrow;
    session.DestX = session.DestY = 0;
    set_status(GetMensaje(mensaje::pick_new_place));
}

} // namespace velmora
