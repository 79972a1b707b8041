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
#include "document/state/program.h"
#include "document/windows/velmora.h"
#include "platform/dialogs.h"
#include "runtime/error.h"
#include "services/message_codes.h"
#include "services/messages.h"
#include "shapeops/scaling.h"

#include <functional>

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

void tell_refusal(const RuntimeError& refusal) {
    const std::string text = quiet_text(message::drawing_refused);
    set_status(text + " " + refusal.description);
    MsgBox(text + "\n\n" + refusal.description, buttons::exclamation, box_title());
}

/// False where the CAD has refused, and said why.
bool unless_refused(const std::function<void()>& capture) {
    bool refused = false;
    trap(capture, [&](const RuntimeError& failure) {
        if (failure.number != error::drawing_refused)
            throw RuntimeError(failure);
        tell_refusal(failure);
        refused = true;
    });
    return !refused;
}

/// A capture that the user cancels, or the CAD refuses, leaves all as it was before.
bool captured(Flag from_drawing, const ShapeBefore& before) {
    bool taken = false;
    if (!run_or_cancel([&] { taken = unless_refused([&] { CapturaAcad(from_drawing); }); })) {
        before.put_back();
        set_status(GetMensaje(message::capture_cancelled));
        return false;
    }
    if (!taken)
        before.put_back();
    return taken;
}

/// Which drawing it was, and what of it was passed over. The connected one is gone where events of
/// the capture took it away.
void show_remarks() {
    if (acad().AcadDoc)
        state::Velmora.lbl_notice = acad().AcadDoc->Remarks();
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
    show_remarks();
}

void menu_select_orig() {
    if (SelOrigen() == False)
        return;
    if (!captured(False, ShapeBefore()))
        return;
    scale_and_refresh();
    show_remarks();
}

void mnu_SendToCad() {
    SendToCad();
}

} // namespace velmora
