// The commands of the menu mnu_Archivo.
#include "canvas/print.h"
#include "commands/handlers.h"
#include "document/number_text.h"
#include "document/options.h"
#include "document/recent_files.h"
#include "document/refresh.h"
#include "document/session.h"
#include "formats/box_text.h"
#include "formats/load.h"
#include "formats/save.h"
#include "forms/velmora.h"
#include "platform/platform.h"
#include "platform/windows.h"
#include "runtime/text.h"
#include "services/settings.h"
#include "services/shape_at_hand.h"

namespace velmora {

namespace {

void take_colours() {
    session.Velmora.pic_BackColor = session.cl_fondo;
    session.Velmora.lbl_xyfloat_ForeColor = session.cl_coords;
}

void generate_when_named() {
    if (!session.FileName.empty())
        GeneraFichero();
}

void clear_list() {
    session.Velmora.Lst_Coords.clear();
    ++session.Velmora.Lst_Coords_fill;
}

void reset_origin_figures() {
    session.OrigX = Forma.Pto[0].X;
    session.OrigY = Forma.Pto[0].Y;
    session.wininfo.TxtOrigX = CStr(session.OrigX);
    session.wininfo.TxtOrigY = CStr(session.OrigY);
}

/// TotalSinc and TotalObjs are not among them, on purpose.
void reset_counts() {
    WinInfo& box = session.wininfo;
    session.TotalPtos = session.PtosSuprimidos = 0;
    session.NLines = session.NSplines = session.NCircles = 0;
    session.NArcs = session.NLWPolylines = 0;
    for (std::string* text :
         {&box.TxtTotalPtos, &box.TxtPtosSupr, &box.TxtNlines, &box.TxtNSplines, &box.TxtNCircles,
          &box.TxtNArcs, &box.TxtNLWPolylines, &box.TxtTotalCtrlPtos, &box.TxtProcesed})
        show_count(*text, 0);
}

} // namespace

// Both steps go by what stands afterwards: a cancelled window refreshes an outline too.
void mnu_newfile() {
    platform().windows.show_modal("New_Dat");
    if (hay_forma()) {
        Apply_Precision();
        Define_Layout();
        Dibuja();
        Carga_List_Coords("NEWFILE");
    }
    if (session.PtosToInsertMode) {
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
    session.PtoSel = 0;
    Apply_Precision();
    LeeSettings();
    session.winoptions.Txt_zoom = CStr(session.Def_Zoom);
    session.ZoomFactor = session.Def_Zoom;
    take_colours();
    Define_Layout();
    Dibuja();
    UpdateFileMenu(session.Velmora.TxtDat_File);
    Carga_List_Coords("NEWFILE");
}

void mnuRecentFile(int index) {
    const std::string path = session.Velmora.mnuRecentFile.at(static_cast<std::size_t>(index)).path;
    session.Velmora.TxtDat_File = path;
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
    if (runtime::Trim(session.Velmora.TxtDat_File).empty())
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
    session.Velmora.TxtDat_File.clear();
    session.Velmora.TxtDescDat.clear();
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
    session.ExitConfirmed = 0;
    SalVelmora(cancel);
}

// Unlike the menu's entry it lets a No stand: the key is silent from then on, on purpose.
void K_EXIT() {
    std::int16_t cancel = 0;
    SalVelmora(cancel);
}

} // namespace velmora
