// The commands of the menu mnu_Archivo.
#include "cad/entity_counters.h"
#include "canvas/fit.h"
#include "canvas/print.h"
#include "canvas/save_view.h"
#include "commands/handlers.h"
#include "commands/open_recovered.h"
#include "document/flag.h"
#include "document/forma.h"
#include "document/options.h"
#include "document/recent_files.h"
#include "document/refresh.h"
#include "document/shown.h"
#include "document/state/document.h"
#include "document/state/program.h"
#include "document/state/view.h"
#include "document/state/view_choices.h"
#include "document/windows/importar.h"
#include "document/windows/velmora.h"
#include "formats/load.h"
#include "formats/save.h"
#include "forms/save_place.h"
#include "forms/velmora.h"
#include "platform/dialogs.h"
#include "platform/platform.h"
#include "platform/program_windows.h"
#include "runtime/text.h"
#include "services/message_codes.h"
#include "services/messages.h"
#include "services/settings.h"
#include "services/shape_at_hand.h"

#include <utility>

namespace velmora {

namespace {

void generate_when_named() {
    if (!state::document.FileName.empty())
        GeneraFichero();
}

std::string ask_for_picture() {
    constexpr const char* extension = ".png";
    const DocumentState& document = state::document;
    return ask_where_to_save(
        {.title = GetMensaje(message::save_view_title),
         .filter = "PNG (*.png)|*.png",
         .folder = document.LastDir.empty() ? state::program.program_folder : document.LastDir,
         .name = beside(document.FileName, extension),
         .extension = extension});
}

void clear_list() {
    state::Velmora.Lst_Coords.clear();
    ++state::Velmora.Lst_Coords_fill;
}

void reset_origin_figures() {
    shown::OrigX().put(Forma.Pto[0].X);
    shown::OrigY().put(Forma.Pto[0].Y);
}

/// TotalSinc and TotalObjs keep what they were, on purpose.
void reset_counts() {
    shown::TotalPtos().put(0);
    shown::PtosSuprimidos().put(0);
    clear_entity_counts();
    shown::TotalSinc().show(0);
    shown::TotalObjs().show(0);
}

/// Where the user chose so; at the stored zoom otherwise.
void fit_opened() {
    if (state::view_choices.FitOnOpen != False && has_shape())
        fit_shape();
}

/// The outline at the stored zoom, its first point selected.
void show_from_the_start() {
    state::document.PtoSel = 0;
    Apply_Precision();
    LeeSettings();
    take_stored_zoom();
    take_colours();
    Define_Layout();
    Dibuja();
    fit_opened();
}

} // namespace

// Both steps go by what is there afterwards: a cancelled window refreshes an outline too.
void mnu_newfile() {
    platform().windows.show_modal("New_Dat");
    if (has_shape()) {
        Apply_Precision();
        Define_Layout();
        Dibuja();
        Carga_List_Coords("NEWFILE");
    }
    if (state::view.PtosToInsertMode) {
        Define_Layout();
        Dibuja();
        Carga_List_Coords("NEWFILE");
    }
}

void mnu_openfile() {
    std::int16_t result = False;
    CargaFichero(1, result);
    if (result != True)
        return;
    show_from_the_start();
    UpdateFileMenu(state::Velmora.TxtDat_File);
    Carga_List_Coords("NEWFILE");
}

void mnuRecentFile(int index) {
    const std::string path = state::Velmora.mnuRecentFile.at(static_cast<std::size_t>(index)).path;
    open_named(path);
}

void open_named(std::string_view path) {
    state::Velmora.TxtDat_File = path;
    std::int16_t result = False;
    CargaFichero(0, result);
    if (result != True)
        return;
    Apply_Precision();
    LeeSettings();
    take_defaults();
    take_colours();
    Define_Layout();
    Dibuja();
    fit_opened();
    UpdateFileMenu(path);
    Carga_List_Coords("NEWFILE");
}

void open_recovered(const std::string& path) {
    state::Velmora.TxtDat_File = path;
    std::int16_t result = False;
    CargaFichero(0, result);
    if (result != True)
        return;
    state::document.PtoSel = 0;
    Apply_Precision();
    Define_Layout();
    Dibuja();
    Carga_List_Coords("NEWFILE");
}

void mnu_savefile() {
    if (!shape_at_hand())
        return;
    if (runtime::Trim(state::Velmora.TxtDat_File).empty())
        DialogoGuardar();
    generate_when_named();
}

void mnu_savefileas() {
    if (!shape_at_hand())
        return;
    DialogoGuardar();
    generate_when_named();
}

void mnu_closefile() {
    Forma.Pto.redim(0);
    state::Velmora.TxtDat_File.clear();
    state::Velmora.TxtDescDat.clear();
    clear_list();
    reset_origin_figures();
    reset_counts();
    clear_canvas();
}

void mnu_edit() {
    AbreEdicion();
}

void mnu_print() {
    PrintPic();
}

void mnu_exit() {
    std::int16_t cancel = 0;
    state::program.ExitConfirmed = 0;
    SalVelmora(cancel);
}

// Unlike the menu's entry it doesn't reset an earlier No: the key is silent from then on, on
// purpose.
void K_EXIT() {
    std::int16_t cancel = 0;
    SalVelmora(cancel);
}

void mnu_save_view() {
    if (!shape_at_hand())
        return;
    if (const std::string path = ask_for_picture(); !path.empty())
        save_view(path);
}

// As an opened file, but the recent files: there is nothing to open yet under its name.
void mnu_importar() {
    platform().windows.show_modal("importar");
    const ImportarWindow import = std::exchange(state::importar, {});
    if (!import.taken)
        return;
    take_in_imported(import.target, import.kind_text);
    show_from_the_start();
    Carga_List_Coords("NEWFILE");
}

} // namespace velmora
