#include "cad/connection.h"

#include "document/flag.h"
#include "document/state/cad.h"
#include "document/windows/velmora.h"
#include "document/windows/wininfo.h"
#include "platform/platform.h"
#include "runtime/error.h"
#include "runtime/text.h"
#include "services/message_codes.h"
#include "services/messages.h"

namespace velmora {

namespace {

constexpr std::uint32_t kConnected = 65280;
constexpr std::uint32_t kNotConnected = 255;

void enable(std::string_view entry, bool enabled) {
    state::Velmora.menus[std::string(entry)].enabled = enabled;
}

void enable_document_commands(bool enabled) {
    enable("mnu_capture", enabled);
    enable("menu_select_orig", enabled);
}

void forget_document() {
    state::cad.AcadDocLoaded = False;
    acad().AcadDoc.reset();
}

// The errors of the look-up are ignored, and those of its message with them: without a language
// database the program starts all the same.
void look_for_application() {
    acad().AcadApp.reset();
    trap([] { acad().AcadApp = platform().cad.GetObject(); }, [](const RuntimeError&) {});
    if (!acad().AcadApp)
        trap([] { MuestraMensaje(message::cad_not_open); }, [](const RuntimeError&) {});
}

void clear_names() {
    state::wininfo.TxtOpensw.clear();
    state::wininfo.txtAcadVer.clear();
}

// What was shown of a document stays, on purpose: only the application's state changes.
void show_not_connected() {
    state::cad.AcadOpen = False;
    state::wininfo.ShpAcadOpen = kNotConnected;
    clear_names();
    enable_document_commands(false);
    enable("mnu_SendToCad", false);
}

void show_names() {
    state::wininfo.TxtOpensw = acad().AcadApp->Name();
    state::wininfo.txtAcadVer = acad().AcadApp->Version();
}

void show_connected() {
    state::wininfo.ShpAcadOpen = kConnected;
    state::cad.AcadOpen = True;
    enable("mnu_SendToCad", true);
}

void show_no_document() {
    enable_document_commands(false);
    state::wininfo.ShpAcadDocLoaded = kNotConnected;
    state::wininfo.TxtAcadFile.clear();
}

void look_for_document() {
    if (acad().AcadApp->Documents_Count() >= 1)
        take_active_document();
    else
        show_no_document();
}

/// What was found is open, also while it rejects calls; then `otherwise` runs.
template <class Call, class Otherwise>
void unless_busy(Call call, Otherwise otherwise) {
    trap(call, [&](const RuntimeError& failure) {
        if (failure.number != error::cad_busy)
            throw RuntimeError(failure);
        otherwise();
    });
}

} // namespace

AcadConnection& acad() {
    static AcadConnection connection;
    return connection;
}

std::shared_ptr<AcadDocument> connected_document() {
    if (!acad().AcadDoc)
        raise(error::object_not_set);
    return acad().AcadDoc;
}

void take_active_document() {
    acad().AcadDoc = acad().AcadApp->ActiveDocument();
    state::cad.AcadDocLoaded = True;
    state::wininfo.ShpAcadDocLoaded = kConnected;
    enable_document_commands(true);
    state::wininfo.TxtAcadFile = runtime::UCase(runtime::Trim(acad().AcadDoc->Name()));
}

void ReconectaAcad() {
    forget_document();
    look_for_application();
    if (!acad().AcadApp) {
        show_not_connected();
        return;
    }
    bool busy = false;
    unless_busy(show_names, [&] {
        busy = true;
        clear_names();
    });
    show_connected();
    if (busy) {
        show_no_document();
        return;
    }
    unless_busy(look_for_document, [] {
        forget_document();
        show_no_document();
    });
}

} // namespace velmora
