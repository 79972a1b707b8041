#include "canvas/keys.h"

#include "document/feedback.h"
#include "document/flag.h"
#include "document/forma.h"
#include "document/pointer_shape.h"
#include "document/refresh.h"
#include "document/selection.h"
#include "document/shown.h"
#include "document/state/document.h"
#include "document/state/view.h"
#include "document/windows/velmora.h"
#include "runtime/numbers.h"
#include "shapeops/point_editing.h"

namespace velmora {

namespace {

constexpr int kCtrl = 2;
constexpr double kNudges = 100; ///< arrow presses that cross the shape

void flip_sync() {
    std::int16_t& sync = Forma.Pto[state::document.PtoSel].Sinc;
    const bool was_sync = sync != 0;
    sync = was_sync ? 0 : 1;
    shown::TotalSinc().step(was_sync ? -1 : 1);
}

void nudge(double Pto::*axis, double extent) {
    double& value = Forma.Pto[state::document.PtoSel].*axis;
    value = runtime::checked(value + extent / kNudges);
}

std::int32_t first_marked() {
    std::int32_t index = 0;
    while (index < Forma.Pto.upper() && Forma.Pto[index].Marca != 1)
        ++index;
    return index;
}

/// Turns the array back, so that the points put in come before the one selected then.
void end_insertion() {
    state::view.PtosToInsertMode = False;
    if (state::document.PtoSelAnt < 0) {
        state::document.PtoSel = 0;
        return;
    }
    state::document.PtoSel = first_marked();
    Set_CutStart();
    state::document.PtoSel =
        state::document.PtoSelAnt == 0 ? Forma.Pto.upper() : state::document.PtoSelAnt - 1;
    state::document.PtoSelAnt = -1;
}

void leave_modes() {
    state::view.MoveShapeMode = False;
    state::Velmora.pic_MousePointer = pointer::standard;
    set_status("");
    if (state::view.PtosToInsertMode)
        end_insertion();
}

/// The keys that need the point itself.
void change_selected(int KeyCode) {
    switch (KeyCode) {
    case key::Insert:
        return Insert_Pto();
    case key::S:
        return flip_sync();
    case key::Up:
        return nudge(&Pto::Y, state::document.Altura);
    case key::Down:
        return nudge(&Pto::Y, -state::document.Altura);
    case key::Right:
        return nudge(&Pto::X, state::document.Longitud);
    case key::Left:
        return nudge(&Pto::X, -state::document.Longitud);
    default:
        return;
    }
}

void carry_out(int KeyCode) {
    switch (KeyCode) {
    case key::Delete:
        return Delete_Pto();
    case key::M:
        state::document.PtoSel =
            state::document.PtoSel < 1 ? Forma.Pto.upper() : state::document.PtoSel - 1;
        return;
    case key::N:
        state::document.PtoSel =
            state::document.PtoSel >= Forma.Pto.upper() ? 0 : state::document.PtoSel + 1;
        return;
    case key::Esc:
        return leave_modes();
    default:
        if (has_selection())
            change_selected(KeyCode);
    }
}

bool is_modifier(int KeyCode) {
    return KeyCode == key::Shift || KeyCode == key::Control || KeyCode == key::Alt;
}

void note_ctrl(int Shift) {
    state::view.CtrlDown = flag((Shift & kCtrl) != 0);
}

} // namespace

void pic_KeyDown(int KeyCode, int Shift) {
    if (state::document.PtoSel > -1 && !is_modifier(KeyCode)) {
        carry_out(KeyCode);
        Dibuja_unless_NoRedraw();
    }
    note_ctrl(Shift);
}

void pic_KeyUp(int, int Shift) {
    note_ctrl(Shift);
}

void pic_LostFocus() {
    state::view.CtrlDown = False;
}

} // namespace velmora
