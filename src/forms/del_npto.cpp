#include "forms/del_npto.h"

#include "document/feedback.h"
#include "document/forma.h"
#include "document/number_text.h"
#include "document/pointer_shape.h"
#include "document/refresh.h"
#include "document/selection.h"
#include "document/shown.h"
#include "document/state/document.h"
#include "document/text_box.h"
#include "document/windows/del_npto.h"
#include "forms/numeric_box.h"
#include "platform/platform.h"
#include "platform/program_windows.h"
#include "runtime/numbers.h"
#include "services/message_codes.h"
#include "services/messages.h"
#include "services/window_literals.h"
#include "shapeops/density.h"

namespace velmora {

namespace {

constexpr std::string_view kWindow = "del_Npto";

NumericBox jump_box() {
    return {.window = kWindow,
            .control = "Txt_JumpPoints",
            .text = state::del_Npto.Txt_JumpPoints,
            .changed = Txt_JumpPoints_Change};
}

NumericBox count_box() {
    return {.window = kWindow,
            .control = "Txt_Numpoints2del",
            .text = state::del_Npto.Txt_Numpoints2del};
}

double jump() {
    return runtime::Val(state::del_Npto.Txt_JumpPoints);
}

double count() {
    return runtime::Val(state::del_Npto.Txt_Numpoints2del);
}

void show_maximum(double points) {
    std::string& label = state::del_Npto.Lbl_Maxpoints;
    label = '(';
    label += CStr(points);
    label += ')';
}

} // namespace

void del_Npto_Load() {
    state::del_Npto = {};
    set_pointer(pointer::standard);
    load_literals(kWindow);
    state::del_Npto.MaxDel = Forma.Pto.upper() - 2;
    put_text(state::del_Npto.Txt_JumpPoints, CStr(0), Txt_JumpPoints_Change);
    show_maximum(state::del_Npto.MaxDel);
}

void Txt_JumpPoints_Change() {
    DelNptoWindow& window = state::del_Npto;
    const double left_between = jump();
    if (left_between <= 0) {
        show_maximum(window.MaxDel);
        return;
    }
    const double step = left_between + 1;
    if (step * count() > window.MaxDel) {
        MuestraMensaje(message::too_many_deletions);
        put_text(window.Txt_JumpPoints, "0", Txt_JumpPoints_Change);
        return;
    }
    show_maximum(window.MaxDel / step);
}

int Txt_JumpPoints_KeyPress(int key) {
    return numeric_key(jump_box(), key);
}

int Txt_Numpoints2del_KeyPress(int key) {
    return numeric_key(count_box(), key);
}

void Txt_Numpoints2del_LostFocus() {
    const double points = count();
    if (points > state::del_Npto.MaxDel)
        MuestraMensaje(message::too_many_deletions);
    else if (points >= 0)
        return;
    reset_box(count_box());
}

// The shown count is the upper bound less one, and sync total and list stay: on purpose, later
// commands put them right. An interval that was typed before the number can ask for too many: it
// was not looked at with this number.
void del_Npto_cmd_ok_Click() {
    const double points = count();
    if (points <= 0)
        return reset_box(count_box());
    auto kept = thinned(Forma.Pto, state::document.PtoSel, points, jump());
    if (!kept)
        return void(MuestraMensaje(message::too_many_deletions));
    Forma.Pto.swap(*kept);
    --state::document.PtoSel;
    if (!has_selection())
        state::document.PtoSel = 0;
    Dibuja();
    shown::TotalPtos().put(Forma.Pto.upper() - 1);
    platform().windows.unload(kWindow);
}

void del_Npto_cmd_cancel_Click() {
    platform().windows.unload(kWindow);
}

} // namespace velmora
