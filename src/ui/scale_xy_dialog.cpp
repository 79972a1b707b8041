#include "ui/scale_xy_dialog.h"

#include "document/windows/scale_xy.h"
#include "forms/scale_xy.h"

namespace velmora {

ScaleXyDialog::ScaleXyDialog(EventSink& events) : FormWindow(events) {
    bind();
    wire();
    list_controls({"Opt_fixed", "Opt_percent", "frm_fixed", "frm_percent", "txt_fixed_x",
                   "txt_fixed_y", "txt_percent_x", "txt_percent_y", "lbl_fixed_x", "lbl_fixed_y",
                   "lbl_percent_x", "lbl_percent_y", "cmd_ok", "cmd_cancel"});
}

void ScaleXyDialog::bind() {
    ScaleXyWindow& state = state::Scale_xy;
    bindings().check(*ui.Opt_fixed, state.Opt_fixed);
    bindings().shows<bool>([&state] { return !state.Opt_fixed; },
                           [this](bool on) { ui.Opt_percent->setChecked(on); });
    bindings().text(*ui.txt_fixed_x, state.txt_fixed_x);
    bindings().text(*ui.txt_fixed_y, state.txt_fixed_y);
    bindings().text(*ui.txt_percent_x, state.txt_percent_x);
    bindings().text(*ui.txt_percent_y, state.txt_percent_y);
    bindings().enabled(*ui.frm_fixed, state.frm_fixed_enabled);
    bindings().enabled(*ui.frm_percent, state.frm_percent_enabled);
    bindings().enabled(*ui.cmd_ok, state.cmd_ok_enabled);
}

void ScaleXyDialog::wire() {
    on_click(*ui.Opt_fixed, Opt_fixed_Click);
    on_click(*ui.Opt_percent, Opt_percent_Click);
    on_click(*ui.cmd_ok, Scale_xy_cmd_ok_Click);
    on_click(*ui.cmd_cancel, Scale_xy_cmd_cancel_Click);
    const std::pair<QLineEdit*, ScaleBox> boxes[] = {
        {ui.txt_fixed_x, ScaleBox::fixed_x},
        {ui.txt_fixed_y, ScaleBox::fixed_y},
        {ui.txt_percent_x, ScaleBox::percent_x},
        {ui.txt_percent_y, ScaleBox::percent_y},
    };
    for (const auto& [box, which] : boxes) {
        on_change(*box, [which] { Scale_xy_Change(which); });
        on_key_press(*box, [which](int key) { return Scale_xy_KeyPress(which, key); });
    }
}

void ScaleXyDialog::Load() {
    Scale_xy_Load();
}

} // namespace velmora
