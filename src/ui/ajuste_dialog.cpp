#include "ui/ajuste_dialog.h"

#include "document/windows/ajuste.h"
#include "forms/ajuste.h"
#include "platform/platform.h"

#include <QEvent>
#include <string_view>

namespace velmora {

namespace {

bool is_count(std::string_view text) {
    return !text.empty() && text.front() >= '0' && text.front() <= '9';
}

} // namespace

AjusteDialog::AjusteDialog(EventSink& events) : FormWindow(events) {
    bind_sides();
    bind_results();
    bind_status();
    wire();
    list_controls({"Frm_A",
                   "cmd_selA",
                   "txt_fileA",
                   "Pic_A",
                   "Label1",
                   "TxtTotalPtos_A",
                   "Label2",
                   "TxtTotalCtrlPtos_A",
                   "Frm_B",
                   "cmd_selB",
                   "Txt_FileB",
                   "Pic_B",
                   "Label3",
                   "TxtTotalPtos_B",
                   "Label4",
                   "TxtTotalCtrlPtos_B",
                   "cmd_opt",
                   "Cmd_Ajuste",
                   "lbl_tramo",
                   "lbl_estado",
                   "Frame1",
                   "Txt_File_A2",
                   "New_Pic_A",
                   "Label5",
                   "TxtTotalPtosNew_A",
                   "Label6",
                   "TxtTotalCtrlPtosNew_A",
                   "Frame2",
                   "Txt_File_B2",
                   "New_Pic_B",
                   "Label7",
                   "TxtTotalPtosNew_B",
                   "Label8",
                   "TxtTotalCtrlPtosNew_B",
                   "ChkPtosCtrl",
                   "Cmd_save",
                   "cmd_exit",
                   "Cmd_VerCorte"});
    ui.cmd_selA->setFocus();
}

AjusteDialog::~AjusteDialog() {
    withdraw_pictures();
}

void AjusteDialog::bind_sides() {
    AjusteWindow& state = state::ajuste;
    bindings().text(*ui.txt_fileA, state.txt_fileA);
    bindings().text(*ui.Txt_FileB, state.Txt_FileB);
    bindings().text(*ui.TxtTotalPtos_A, state.TxtTotalPtos_A);
    bindings().text(*ui.TxtTotalPtos_B, state.TxtTotalPtos_B);
    bindings().text(*ui.TxtTotalCtrlPtos_A, state.TxtTotalCtrlPtos_A);
    bindings().text(*ui.TxtTotalCtrlPtos_B, state.TxtTotalCtrlPtos_B);
    bindings().enabled(*ui.cmd_opt, state.cmd_opt_enabled);
    bindings().enabled(*ui.Cmd_Ajuste, state.Cmd_Ajuste_enabled);
}

void AjusteDialog::bind_results() {
    AjusteWindow& state = state::ajuste;
    bindings().text(*ui.Txt_File_A2, state.Txt_File_A2);
    bindings().text(*ui.Txt_File_B2, state.Txt_File_B2);
    bindings().text(*ui.TxtTotalPtosNew_A, state.TxtTotalPtosNew_A);
    bindings().text(*ui.TxtTotalPtosNew_B, state.TxtTotalPtosNew_B);
    bindings().text(*ui.TxtTotalCtrlPtosNew_A, state.TxtTotalCtrlPtosNew_A);
    bindings().text(*ui.TxtTotalCtrlPtosNew_B, state.TxtTotalCtrlPtosNew_B);
    bindings().check(*ui.ChkPtosCtrl, state.ChkPtosCtrl);
    bindings().enabled(*ui.Cmd_save, state.Cmd_save_enabled);
    bindings().enabled(*ui.cmd_exit, state.cmd_exit_enabled);
}

void AjusteDialog::bind_status() {
    AjusteWindow& state = state::ajuste;
    bindings().label(*ui.lbl_estado, state.lbl_estado);
    bindings().shows<bool>([&state] { return !state.lbl_estado.empty(); },
                           [this](bool told) { ui.lbl_estado->setVisible(told); });
    // "3 / 200" is the run at work; anything else stands for itself.
    bindings().shows<bool>([&state] { return is_count(state.lbl_estado); },
                           [this](bool working) { ui.lbl_tramo->setVisible(working); });
}

void AjusteDialog::wire() {
    on_idle_click(*ui.cmd_selA, cmd_selA_Click);
    on_idle_click(*ui.cmd_selB, cmd_selB_Click);
    on_idle_click(*ui.cmd_opt, cmd_opt_Click);
    connect(ui.Cmd_Ajuste, &QAbstractButton::clicked, this, [this] {
        if (events().idle())
            events().run_alone(Cmd_Ajuste_Click);
    });
    on_idle_click(*ui.Cmd_save, Cmd_save_Click);
    on_idle_click(*ui.cmd_exit, ajuste_cmd_exit_Click);
    on_idle_click(*ui.Cmd_VerCorte, Cmd_VerCorte_Click);
}

void AjusteDialog::on_idle_click(QAbstractButton& button, void (*handler)()) {
    connect(&button, &QAbstractButton::clicked, this, [this, handler] {
        if (events().idle())
            events().run(handler);
    });
}

void AjusteDialog::Load() {
    offer_pictures();
    ajuste_Load();
}

void AjusteDialog::Activate() {
    ajuste_Activate();
}

void AjusteDialog::Unload() {
    withdraw_pictures();
}

bool AjusteDialog::eventFilter(QObject* watched, QEvent* event) {
    const bool closing = watched == &widget() && event->type() == QEvent::Close;
    if (!closing || events().idle())
        return Window::eventFilter(watched, event);
    event->ignore();
    return true;
}

PreviewSurface& AjusteDialog::picture(PreviewPicture which) {
    switch (which) {
    case PreviewPicture::Pic_A:
        return *ui.Pic_A;
    case PreviewPicture::Pic_B:
        return *ui.Pic_B;
    case PreviewPicture::New_Pic_A:
        return *ui.New_Pic_A;
    case PreviewPicture::New_Pic_B:
        break;
    }
    return *ui.New_Pic_B;
}

void AjusteDialog::offer_pictures() {
    set_previews(this);
}

void AjusteDialog::withdraw_pictures() {
    if (platform().previews == this)
        set_previews(nullptr);
}

} // namespace velmora
