#include "ui/importar_dialog.h"

#include "forms/importar.h"
#include "toolkit/qt_text.h"
#include "ui/file_drop.h"
#include "ui/program_style.h"

namespace velmora {

namespace {

constexpr QSize kSizeAtStart(980, 640);

} // namespace

ImportarDialog::ImportarDialog(EventSink& events) : FormWindow(events) {
    new FileDrop(widget(), [this](const std::string& path) {
        this->events().run([&path] { importar_take_file(path); });
    });
    // A box or a report that took the drop would show the path and read nothing.
    for (QLineEdit* box : widget().findChildren<QLineEdit*>())
        box->setAcceptDrops(false);
    ui.Txt_Report->setAcceptDrops(false);
    ui.Txt_Report->viewport()->setAcceptDrops(false);
    for (QWidget* framed :
         {static_cast<QWidget*>(ui.Lst_Chains), static_cast<QWidget*>(ui.Txt_Report)})
        framed->setProperty(kFocusRing, true);
    bind();
    wire();
    list_controls({"lbl_file",    "Txt_File",   "Cmd_File",    "Pic_Import",    "Lst_Chains",
                   "Frm_Report",  "Txt_Report", "Frm_Reading", "lbl_kind",      "Cmb_Kind",
                   "lbl_rows",    "Cmb_Rows",   "lbl_element", "Cmb_Element",   "lbl_unit",
                   "Cmb_Unit",    "lbl_axes",   "Cmb_Axes",    "lbl_tolerance", "Txt_Tolerance",
                   "lbl_gap",     "Txt_Gap",    "Chk_Doubles", "Chk_Hidden",    "Chk_Approach",
                   "Frm_Outline", "lbl_start",  "Cmb_Start",   "lbl_direction", "Cmb_Direction",
                   "lbl_scale",   "Txt_Scale",  "lbl_chord",   "Txt_Chord",     "lbl_note",
                   "cmd_ok",      "cmd_cancel"});
    ui.Cmd_File->setFocus();
}

void ImportarDialog::bind() {
    ImportarWindow& state = state::importar;
    bindings().text(*ui.Txt_File, state.Txt_File);
    bindings().label(*ui.lbl_note, state.lbl_note);
    bindings().shows<std::string>(
        [&state] { return state.Txt_Report; },
        [this](const std::string& text) { ui.Txt_Report->setPlainText(qt_text(text)); });
    bind_list(*ui.Cmb_Kind, state.Cmb_Kind);
    bind_list(*ui.Cmb_Rows, state.Cmb_Rows);
    bind_list(*ui.Cmb_Element, state.Cmb_Element);
    bind_list(*ui.Cmb_Unit, state.Cmb_Unit);
    bind_list(*ui.Cmb_Axes, state.Cmb_Axes);
    bind_list(*ui.Cmb_Start, state.Cmb_Start);
    bind_list(*ui.Cmb_Direction, state.Cmb_Direction);
    bind_box(*ui.Txt_Tolerance, state.Txt_Tolerance);
    bind_box(*ui.Txt_Gap, state.Txt_Gap);
    bind_box(*ui.Txt_Scale, state.Txt_Scale);
    bind_box(*ui.Txt_Chord, state.Txt_Chord);
    bindings().check(*ui.Chk_Doubles, state.Chk_Doubles);
    bindings().check(*ui.Chk_Hidden, state.Chk_Hidden);
    bindings().check(*ui.Chk_Approach, state.Chk_Approach);
    bindings().enabled(*ui.Chk_Hidden, state.Chk_Hidden_enabled);
    bindings().enabled(*ui.Chk_Approach, state.Chk_Approach_enabled);
    bindings().enabled(*ui.cmd_ok, state.cmd_ok_enabled);
    bind_chains();
}

void ImportarDialog::bind_box(QLineEdit& box, ImportarBox& text) {
    bindings().text(box, text.text);
    bindings().enabled(box, text.enabled);
}

void ImportarDialog::bind_chains() {
    const ImportarWindow& state = state::importar;
    ui.Pic_Import->show_chains_of(state);
    ui.Lst_Chains->show_rows_of(state);
    bindings().shows<std::uint64_t>([&state] { return state.pictures; },
                                    [this](std::uint64_t) {
                                        ui.Pic_Import->start_over();
                                        ui.Lst_Chains->start_over();
                                    });
}

void ImportarDialog::wire() {
    on_click(*ui.Cmd_File, Cmd_File_Click);
    for (QComboBox* box : {ui.Cmb_Kind, ui.Cmb_Rows, ui.Cmb_Element, ui.Cmb_Unit, ui.Cmb_Axes})
        on_choice(*box, importar_reading_Change);
    for (QComboBox* box : {ui.Cmb_Start, ui.Cmb_Direction})
        on_choice(*box, importar_order_Change);
    for (QLineEdit* box : {ui.Txt_Tolerance, ui.Txt_Gap})
        on_change(*box, importar_reading_Change);
    on_change(*ui.Txt_Scale, Txt_Scale_Change);
    on_change(*ui.Txt_Chord, Txt_Chord_Change);
    for (QCheckBox* box : {ui.Chk_Doubles, ui.Chk_Hidden, ui.Chk_Approach})
        on_click(*box, importar_reading_Change);
    const auto clicked = [this](int chain) {
        events().run([chain] { importar_chain_Click(static_cast<std::size_t>(chain)); });
    };
    connect(ui.Pic_Import, &ImportPic::chain_clicked, this, clicked);
    connect(ui.Lst_Chains, &ChainList::chain_clicked, this, clicked);
    on_click(*ui.cmd_ok, importar_cmd_ok_Click);
    on_click(*ui.cmd_cancel, importar_cmd_cancel_Click);
}

void ImportarDialog::Load() {
    importar_Load();
}

void ImportarDialog::place() {
    place_in_middle(kSizeAtStart);
}

} // namespace velmora
