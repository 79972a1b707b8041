// The commands of the menu mnuacad.
#include "cad/capture.h"
#include "cad/connection.h"
#include "cad/select_origin.h"
#include "cad/send.h"
#include "commands/handlers.h"
#include "document/cancelling.h"
#include "document/feedback.h"
#include "document/flag.h"
#include "document/refresh.h"
#include "document/state/cad.h"
#include "document/state/document.h"
#include "document/state/options.h"
#include "document/windows/velmora.h"
#include "platform/dialogs.h"
#include "services/message_codes.h"
#include "services/messages.h"
#include "shapeops/scaling.h"

namespace velmora {

namespace {

/// Also after a capture that took nothing, on purpose: then it works on the shape that was there.
void scale_and_refresh() {
    if (state::options.RedimCapture != False &&
        MuestraMensaje(message::offer_unit_scale) == answer::yes)
        ScaleToUnit();
    Apply_Precision();
    Define_Layout();
    Carga_List_Coords("NEWFILE");
    Dibuja();
}

/// A capture that the user cancels leaves all as it was before.
bool captured(Flag from_drawing, const ShapeBefore& before) {
    if (run_or_cancel([&] { CapturaAcad(from_drawing); }))
        return true;
    before.put_back();
    set_status(GetMensaje(message::capture_cancelled));
    return false;
}

} // namespace

void mnu_Reconect() {
    ReconectaAcad();
}

void mnu_capture() {
    if (state::cad.AcadOpen == False)
        return;
    const ShapeBefore before;
    state::Velmora.TxtDat_File.clear();
    state::Velmora.TxtDescDat.clear();
    state::document.FileName.clear();
    if (!captured(True, before))
        return;
    state::document.PtoSel = 0;
    scale_and_refresh();
}

void menu_select_orig() {
    if (SelOrigen() == False)
        return;
    if (!captured(False, ShapeBefore()))
        return;
    scale_and_refresh();
}

void mnu_SendToCad() {
    SendToCad();
}

} // namespace velmora
