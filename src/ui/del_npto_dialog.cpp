#include "ui/del_npto_dialog.h"

#include "document/windows/del_npto.h"
#include "forms/del_npto.h"

namespace velmora {

namespace {
/// What the label holds at most: a number with 15 digits, between brackets.
constexpr auto kLongestMaximum = "(1000.33333333333)";
} // namespace

DelNptoDialog::DelNptoDialog(EventSink& events) : FormWindow(events) {
    QLabel& maximum = *ui.Lbl_Maxpoints;
    maximum.setMinimumWidth(maximum.fontMetrics().horizontalAdvance(kLongestMaximum));
    bind();
    wire();
    list_controls({"Label1", "Txt_Numpoints2del", "Lbl_Maxpoints", "Label2", "Txt_JumpPoints",
                   "cmd_ok", "cmd_cancel"});
}

void DelNptoDialog::bind() {
    DelNptoWindow& state = state::del_Npto;
    bindings().text(*ui.Txt_Numpoints2del, state.Txt_Numpoints2del);
    bindings().text(*ui.Txt_JumpPoints, state.Txt_JumpPoints);
    bindings().label(*ui.Lbl_Maxpoints, state.Lbl_Maxpoints);
}

void DelNptoDialog::wire() {
    on_key_press(*ui.Txt_Numpoints2del, Txt_Numpoints2del_KeyPress);
    on_lost_focus(*ui.Txt_Numpoints2del, Txt_Numpoints2del_LostFocus);
    on_change(*ui.Txt_JumpPoints, Txt_JumpPoints_Change);
    on_key_press(*ui.Txt_JumpPoints, Txt_JumpPoints_KeyPress);
    on_click(*ui.cmd_ok, del_Npto_cmd_ok_Click);
    on_click(*ui.cmd_cancel, del_Npto_cmd_cancel_Click);
}

void DelNptoDialog::Load() {
    del_Npto_Load();
}

} // namespace velmora
