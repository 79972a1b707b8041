#include "ui/seltexto_dialog.h"

#include "document/windows/seltexto.h"
#include "forms/seltexto.h"

namespace velmora {

SeltextoDialog::SeltextoDialog(EventSink& events) : FormWindow(events) {
    // The form's member cannot have the box's name, which is a word of the language.
    ui.char_->setObjectName("char");
    bind();
    wire();
    list_controls({"char", "Pictext", "cmd_font", "cmd_load", "cmd_exit"});
    ui.char_->setFocus();
}

void SeltextoDialog::bind() {
    SeltextoWindow& state = state::seltexto;
    bindings().text(*ui.char_, state.char_);
    bindings().shows<std::uint64_t>(
        [&state] { return state.Pictext_draws; },
        [this, &state](std::uint64_t) { ui.Pictext->show_segments(state.Pictext); });
}

void SeltextoDialog::wire() {
    on_change(*ui.char_, seltexto_char_Change);
    on_click(*ui.cmd_font, seltexto_cmd_font_Click);
    on_click(*ui.cmd_load, seltexto_cmd_load_Click);
    on_click(*ui.cmd_exit, seltexto_cmd_exit_Click);
}

void SeltextoDialog::Load() {
    seltexto_Load();
}

} // namespace velmora
