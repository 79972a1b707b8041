#include "ui/compensa_dialog.h"

#include "document/windows/compensa.h"
#include "forms/compensa.h"

namespace velmora {

CompensaDialog::CompensaDialog(EventSink& events) : FormWindow(events) {
    bind();
    wire();
    list_controls({"Label1", "Label3", "Label2", "Txt_merma", "cmd_ok", "cmd_cancel"});
    ui.Txt_merma->setFocus();
}

void CompensaDialog::bind() {
    CompensaWindow& state = state::Compensa;
    bindings().text(*ui.Txt_merma, state.Txt_merma);
    bindings().enabled(*ui.cmd_ok, state.cmd_ok_enabled);
}

void CompensaDialog::wire() {
    on_change(*ui.Txt_merma, Txt_merma_Change);
    on_key_press(*ui.Txt_merma, Txt_merma_KeyPress);
    on_click(*ui.cmd_ok, Compensa_cmd_ok_Click);
    on_click(*ui.cmd_cancel, Compensa_cmd_cancel_Click);
}

void CompensaDialog::Load() {
    Compensa_Load();
}

} // namespace velmora
