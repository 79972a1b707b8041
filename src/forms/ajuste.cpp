#include "forms/ajuste.h"

#include "cutprep/adjustment.h"
#include "cutprep/previews.h"
#include "cutprep/projection.h"
#include "cutprep/side.h"
#include "cutprep/side_readers.h"
#include "cutprep/side_writer.h"
#include "document/cancelling.h"
#include "document/feedback.h"
#include "document/pointer_shape.h"
#include "document/shown.h"
#include "document/state/document.h"
#include "document/state/program.h"
#include "document/state/workbench.h"
#include "document/windows/ajuste.h"
#include "platform/dialogs.h"
#include "platform/platform.h"
#include "platform/program_windows.h"
#include "runtime/numbers.h"
#include "runtime/paths.h"
#include "runtime/text.h"
#include "services/message_codes.h"
#include "services/messages.h"
#include "services/window_literals.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace velmora {

namespace {

constexpr std::string_view kWindow = "ajuste";
constexpr std::string_view kNotice = "Tened en cuenta que esta funcionalidad, todavia está en "
                                     "fase de pruebas y desarrolo, podeis "
                                     "jugar con ella, y de paso podeis ir comentando cosillas.";

std::string ask_for_path() {
    if (state::document.LastDir.empty())
        state::document.LastDir = state::program.program_folder;
    return platform().dialogs.open_file({.title = GetMensaje(message::open_title),
                                         .filter = "DAT Files |*.DAT",
                                         .folder = state::document.LastDir,
                                         .name = {}});
}

void compare_sync_totals() {
    AjusteWindow& window = state::ajuste;
    window.cmd_opt_enabled =
        runtime::Val(window.TxtTotalCtrlPtos_B) == runtime::Val(window.TxtTotalCtrlPtos_A);
    if (!window.cmd_opt_enabled)
        MuestraMensaje(message::sync_totals_differ);
}

/// A side that is cancelled keeps the points, the file and the totals of before.
bool read_side_or_cancel(const Side& side, std::string& file, const std::string& path) {
    const AjusteWindow boxes = state::ajuste;
    const Array<Pto> points = side.Ptos;
    file = path;
    bool read = false;
    if (run_or_cancel([&] { read = read_side(side, path); }))
        return read;
    state::ajuste = boxes;
    side.Ptos = points;
    set_pointer(pointer::standard);
    return false;
}

void select_side(const Side& side, std::string& file, const Side& other, void (*draw)()) {
    state::ajuste.cmd_opt_enabled = false;
    state::ajuste.lbl_estado.clear();
    const std::string path = ask_for_path();
    if (path.empty())
        return;
    if (!read_side_or_cancel(side, file, path))
        return;
    draw();
    if (other.Ptos.upper() > 0)
        compare_sync_totals();
}

void empty_results() {
    state::workbench.PtosA2.redim(0);
    state::workbench.PtosB2.redim(0);
}

/// Beside the buttons, since the window hides the main one's panel: the names of the two files.
void confirm_save() {
    state::ajuste.lbl_estado = quiet_text(message::results_saved) + " " +
                               runtime::file_name(state::ajuste.Txt_File_A2) + ", " +
                               runtime::file_name(state::ajuste.Txt_File_B2);
}

void adjust() {
    const std::int32_t NumSinc = count_in(state::ajuste.TxtTotalCtrlPtos_A);
    adjust_sides(NumSinc, [NumSinc](std::int32_t tramo) {
        state::ajuste.lbl_estado = std::to_string(tramo) + " / " + std::to_string(NumSinc);
        DoEvents();
    });
    state::ajuste.lbl_estado.clear();
}

void project_results() {
    WorkbenchState& bench = state::workbench;
    TwoSides moved =
        projected(bench.PtosA2, bench.PtosB2, {.X = bench.OptX, .Y = bench.OptY, .Z = bench.OptZ});
    bench.PtosA2.swap(moved.A);
    bench.PtosB2.swap(moved.B);
}

/// The path less its last four characters, with "2.DAT" after it. Raises 5 for a shorter one.
std::string result_path(const std::string& loaded) {
    return runtime::Left(loaded, static_cast<int>(runtime::Len(loaded)) - 4) + "2.DAT";
}

} // namespace

void ajuste_Load() {
    state::ajuste = {};
    state::workbench.PtosA.redim(0);
    state::workbench.PtosB.redim(0);
    load_literals(kWindow);
}

void ajuste_Activate() {
    MsgBox(kNotice, buttons::information);
}

void cmd_selA_Click() {
    select_side(side_of("A"), state::ajuste.txt_fileA, side_of("B"), DibujaMini_A);
}

void cmd_selB_Click() {
    select_side(side_of("B"), state::ajuste.Txt_FileB, side_of("A"), DibujaMini_B);
}

void cmd_opt_Click() {
    platform().windows.show_modal("ajuste_opt");
    state::ajuste.Cmd_Ajuste_enabled = true;
}

void Cmd_Ajuste_Click() {
    empty_results();
    set_pointer(pointer::hourglass);
    adjust();
    DibujaNewMini_A();
    DibujaNewMini_B();
    project_results();
    DibujaDefMini_A();
    DibujaDefMini_B();
    state::ajuste.Txt_File_A2 = result_path(state::ajuste.txt_fileA);
    state::ajuste.Txt_File_B2 = result_path(state::ajuste.Txt_FileB);
    state::ajuste.Cmd_save_enabled = true;
    set_pointer(pointer::standard);
}

void Cmd_save_Click() {
    AjusteWindow& window = state::ajuste;
    window.lbl_estado.clear();
    window.cmd_exit_enabled = false;
    set_pointer(pointer::hourglass);
    write_results({state::workbench.PtosA2, window.Txt_File_A2},
                  {state::workbench.PtosB2, window.Txt_File_B2}, window.ChkPtosCtrl);
    set_pointer(pointer::standard);
    window.cmd_exit_enabled = true;
    confirm_save();
}

void Cmd_VerCorte_Click() {
    platform().windows.show_modal("ver_corte");
}

void ajuste_cmd_exit_Click() {
    platform().windows.unload(kWindow);
}

} // namespace velmora
