#include "cutprep/sides.h"

#include "cutprep/previews.h"
#include "cutprep/side.h"
#include "cutprep/side_readers.h"
#include "document/feedback.h"
#include "document/flag.h"
#include "document/state/document.h"
#include "document/state/program.h"
#include "document/state/workbench.h"
#include "document/windows/ajuste.h"
#include "formats/box_text.h"
#include "formats/load.h"
#include "platform/dialogs.h"
#include "platform/platform.h"
#include "platform/windows.h"
#include "runtime/numbers.h"
#include "runtime/text.h"
#include "services/message_codes.h"
#include "services/messages.h"
#include "services/window_literals.h"

#include <string>
#include <string_view>

namespace velmora {

namespace {

constexpr std::string_view kWindow = "ajuste";
constexpr std::string_view kNotice =
    "Tened en cuenta que esta funcionalidad, todavia está en fase de pruebas y desarrolo, podeis "
    "jugar con ella, y de paso podeis ir comentando cosillas.";

std::string ask_for_path() {
    if (state::document.LastDir.empty())
        state::document.LastDir = state::program.program_folder;
    return platform().dialogs.open_file({.title = GetMensaje(message::open_title),
                                         .filter = "DAT Files |*.DAT",
                                         .folder = state::document.LastDir,
                                         .name = {}});
}

void refuse(std::string_view path) {
    MsgBox(joined_by_blanks({GetMensaje(message::the_file), path, GetMensaje(message::not_loaded)}),
           buttons::critical, box_title());
    set_pointer(0);
}

/// True when the side was read whole.
bool read_side(const Side& side, const std::string& path) {
    Flag ok = False;
    switch (GetFileFormat(path, runtime::UCase(path))) {
    case FileFormat::SLWSINC:
        CargaSLWSINC2(path, side.Ptos, side.lado, ok);
        break;
    case FileFormat::SLWMD:
        CargaSLWMD_a(path, side.Ptos, side.lado, ok);
        break;
    default:
        refuse(path);
    }
    return ok != False;
}

void compare_sync_totals() {
    AjusteWindow& window = state::ajuste;
    window.cmd_opt_enabled =
        runtime::Val(window.TxtTotalCtrlPtos_B) == runtime::Val(window.TxtTotalCtrlPtos_A);
    if (!window.cmd_opt_enabled)
        MuestraMensaje(message::sync_totals_differ);
}

void select_side(const Side& side, const Side& other, void (*draw)()) {
    state::ajuste.cmd_opt_enabled = false;
    const std::string path = ask_for_path();
    if (path.empty())
        return;
    side.txt_file = path;
    if (!read_side(side, path))
        return;
    draw();
    if (other.Ptos.upper() > 0)
        compare_sync_totals();
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
    select_side(side_of("A"), side_of("B"), DibujaMini_A);
}

void cmd_selB_Click() {
    select_side(side_of("B"), side_of("A"), DibujaMini_B);
}

void cmd_opt_Click() {
    platform().windows.show_modal("ajuste_opt");
    state::ajuste.Cmd_Ajuste_enabled = true;
}

void ajuste_cmd_exit_Click() {
    platform().windows.unload(kWindow);
}

} // namespace velmora
