#include "ui/ajuste_opt_dialog.h"

#include "document/windows/ajuste_opt.h"
#include "forms/ajuste_opt.h"

namespace velmora {

AjusteOptDialog::AjusteOptDialog(EventSink& events) : FormWindow(events) {
    bind();
    wire();
    list_controls({"Picture1", "Label1", "txt_X", "Label2", "txt_Y", "Label3", "txt_Z", "cmb_ok"});
    ui.txt_X->setFocus();
}

void AjusteOptDialog::bind() {
    AjusteOptWindow& state = state::ajuste_opt;
    bindings().text(*ui.txt_X, state.txt_X);
    bindings().text(*ui.txt_Y, state.txt_Y);
    bindings().text(*ui.txt_Z, state.txt_Z);
    bindings().enabled(*ui.cmb_ok, state.cmb_ok_enabled);
}

void AjusteOptDialog::wire() {
    const std::pair<QLineEdit*, AjusteOptBox> boxes[] = {
        {ui.txt_X, AjusteOptBox::txt_X},
        {ui.txt_Y, AjusteOptBox::txt_Y},
        {ui.txt_Z, AjusteOptBox::txt_Z},
    };
    for (const auto& [box, which] : boxes) {
        on_change(*box, ajuste_opt_Change);
        on_key_press(*box, [which](int key) { return ajuste_opt_KeyPress(which, key); });
    }
    on_click(*ui.cmb_ok, cmb_ok_Click);
}

void AjusteOptDialog::Load() {
    ajuste_opt_Load();
}

} // namespace velmora
