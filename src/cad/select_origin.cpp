#include "cad/select_origin.h"

#include "cad/connection.h"
#include "document/feedback.h"
#include "document/flag.h"
#include "document/number_text.h"
#include "document/shown.h"
#include "document/state/cad.h"
#include "document/state/document.h"
#include "platform/platform.h"
#include "platform/program_windows.h"
#include "services/message_codes.h"
#include "services/messages.h"

namespace velmora {

namespace {

// What the CAD answers when the question could not be asked yet.
constexpr auto kCallRejected = static_cast<std::int32_t>(0x8021001CU);
constexpr auto kExceptionInCad = static_cast<std::int32_t>(0x80020009U);

bool connected_with_document() {
    if (state::cad.AcadOpen == False) {
        MuestraMensaje(message::cad_not_open);
        return false;
    }
    if (state::cad.AcadDocLoaded == False) {
        MuestraMensaje(message::no_document);
        return false;
    }
    return true;
}

// An error of the activation remains although the point was picked, on purpose: only a later error
// takes its place.
int ask_point() {
    int error = 0;
    const auto keep_number = [&](const RuntimeError& failure) {
        error = failure.number;
    };
    trap([] { platform().cad.AppActivate(); }, keep_number);
    DoEvents();
    trap(
        [] {
            state::cad.AcadPunto = connected_document()->GetPoint(GetMensaje(message::pick_start));
        },
        keep_number);
    return error;
}

int ask_until_answered() {
    int error = 0;
    do
        error = ask_point();
    while (error == kCallRejected || error == kExceptionInCad);
    return error;
}

void take_origin() {
    const std::vector<double>& point = state::cad.AcadPunto;
    if (point.size() < 2)
        raise(error::subscript);
    state::cad.CadOrigX = Normaliza15(point[0]);
    state::cad.CadOrigY = Normaliza15(point[1]);
    platform().windows.show("wininfo");
    shown::OrigX().put(state::cad.CadOrigX);
    shown::OrigY().put(state::cad.CadOrigY);
}

} // namespace

Flag SelOrigen() {
    if (!connected_with_document())
        return False;
    state::cad.SelOrigenActivo = True;
    set_status(GetMensaje(message::use_alt_tab));
    if (ask_until_answered() != 0) {
        MuestraMensaje(message::wrong_point);
        return False;
    }
    take_origin();
    state::document.LoadOk = 0;
    set_status(GetMensaje(message::capturing));
    state::cad.SelOrigenActivo = False;
    return True;
}

} // namespace velmora
