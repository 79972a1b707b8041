// The commands of the menu mnu_Archivo.
#include "canvas/print.h"
#include "commands/handlers.h"
#include "document/flag.h"
#include "document/forma.h"
#include "document/number_text.h"
#include "document/options.h"
#include "document/recent_files.h"
#include "document/refresh.h"
#include "document/state/cad.h"
#include "document/state/document.h"
#include "document/state/program.h"
#include "document/state/settings.h"
#include "document/state/view.h"
#include "document/windows/velmora.h"
#include "document/windows/wininfo.h"
#include "document/windows/winoptions.h"
#include "formats/box_text.h"
#include "formats/load.h"
#include "formats/save.h"
#include "forms/velmora.h"
#include "platform/platform.h"
#include "platform/program_windows.h"
#include "runtime/text.h"
#include "services/settings.h"
#include "services/shape_at_hand.h"

namespace velmora {

namespace {

void take_colours() {
    state::Velmora.pic_BackColor = state::settings.cl_fondo;
    state::Velmora.lbl_xyfloat_ForeColor = state::settings.cl_coords;
}

void generate_when_named() {
    if (!state::document.FileName.empty())
        GeneraFichero();
}

void clear_list() {
    state::Velmora.Lst_Coords.clear();
    ++state::Velmora.Lst_Coords_fill;
}

void reset_origin_figures() {
    state::document.OrigX = Forma.Pto[0].X;
    state::document.OrigY = Forma.Pto[0].Y;
    state::wininfo.TxtOrigX = CStr(state::document.OrigX);
    state::wininfo.TxtOrigY = CStr(state::document.OrigY);
}

/// TotalSinc and TotalObjs are not among them, on purpose.
void reset_counts() {
    WinInfo& box = state::wininfo;
    state::document.TotalPtos = state::document.PtosSuprimidos = 0;
    state::cad.NLines = state::cad.NSplines = state::cad.NCircles = 0;
    state::cad.NArcs = state::cad.NLWPolylines = 0;
    for (std::string* text :
         {&box.TxtTotalPtos, &box.TxtPtosSupr, &box.TxtNlines, &box.TxtNSplines, &box.TxtNCircles,
          &box.TxtNArcs, &box.TxtNLWPolylines, &box.TxtTotalCtrlPtos, &box.TxtProcesed})
        show_count(*text, 0);
}

} // namespace

// Both steps go by what stands afterwards: a cancelled window refreshes an outline too.
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
    state::document.PtoSel = 0;
    Apply_Precision();
    LeeSettings();
    state::winoptions.Txt_zoom = CStr(state::settings.Def_Zoom);
    state::view.ZoomFactor = state::settings.Def_Zoom;
    take_colours();
    Define_Layout();
    Dibuja();
    UpdateFileMenu(state::Velmora.TxtDat_File);
    Carga_List_Coords("NEWFILE");
}

void mnuRecentFile(int index) {
    const std::string path = state::Velmora.mnuRecentFile.at(static_cast<std::size_t>(index)).path;
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
    UpdateFileMenu(path);
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

// Unlike the menu's entry it lets a No stand: the key is silent from then on, on purpose.
void K_EXIT() {
    std::int16_t cancel = 0;
    SalVelmora(cancel);
}

} // namespace velmora
