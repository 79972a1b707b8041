#include "ui/mult_ptos_dialog.h"

#include "document/windows/mult_ptos.h"
#include "forms/mult_ptos.h"

namespace velmora {

namespace {
constexpr int kFirstFactor = 2;
constexpr int kLastFactor = 10;
} // namespace

MultPtosDialog::MultPtosDialog(EventSink& events) : FormWindow(events) {
    for (int factor = kFirstFactor; factor <= kLastFactor; ++factor)
        ui.Combo1->addItem(QString::number(factor));
    ui.Combo1->setCompleter(nullptr); // "1" is a factor of its own, not the beginning of "10"
    bind();
    wire();
    list_controls(
        {"Combo1", "cmd_cancel", "cmd_ok", "lbl_New_NPoints", "lbl_mult_por", "Lbl_NPoints"});
}

void MultPtosDialog::bind() {
    MultPtosWindow& state = state::Mult_Ptos;
    bindings().text(*ui.Combo1->lineEdit(), state.Combo1);
    bindings().label(*ui.Lbl_NPoints, state.Lbl_NPoints);
    bindings().label(*ui.lbl_New_NPoints, state.lbl_New_NPoints);
    bindings().enabled(*ui.cmd_ok, state.cmd_ok_enabled);
}

void MultPtosDialog::wire() {
    on_change(*ui.Combo1->lineEdit(), Combo1_Change);
    connect(ui.Combo1, &QComboBox::activated, this, [this] { events().run(Combo1_Click); });
    on_click(*ui.cmd_ok, Mult_Ptos_cmd_ok_Click);
    on_click(*ui.cmd_cancel, Mult_Ptos_cmd_cancel_Click);
}

void MultPtosDialog::Load() {
    Mult_Ptos_Load();
}

} // namespace velmora
