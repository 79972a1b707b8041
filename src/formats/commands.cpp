// The commands of the menu mnu_Archivo that open, save and close.
#include "document/feedback.h"
#include "document/handlers.h"
#include "document/number_text.h"
#include "document/options.h"
#include "document/recent_files.h"
#include "document/refresh.h"
#include "document/session.h"
#include "formats/box_text.h"
#include "formats/load.h"
#include "formats/save.h"
#include "runtime/text.h"
#include "services/message_codes.h"
#include "services/messages.h"
#include "services/settings.h"

namespace velmora {

namespace {

void take_colours() {
    session.Velmora.pic_BackColor = session.cl_fondo;
    session.Velmora.lbl_xyfloat_ForeColor = session.cl_coords;
}

bool refuse_without_shape() {
    if (hay_forma())
        return false;
    MuestraMensaje(mensaje::no_shape);
    return true;
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
    if (refuse_without_shape())
        return;
    if (runtime::Trim(session.Velmora.TxtDat_File).empty())
        DialogoGuardar();
    generate_when_named();
}

void mnu_savefileas() {
    if (refuse_without_shape())
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

} // namespace velmora
