#include "cad/send.h"

#include "cad/connection.h"
#include "document/feedback.h"
#include "document/flag.h"
#include "document/forma.h"
#include "document/number_text.h"
#include "document/state/cad.h"
#include "document/state/program.h"
#include "platform/dialogs.h"
#include "platform/platform.h"
#include "platform/program_windows.h"

#include <utility>

namespace velmora {

namespace {

constexpr int kMinimised = 2;
constexpr int kMaximised = 3;

/// X0, Y0, X1, Y1 ... and the first point once more, which the outline does not hold.
std::vector<double> closed_outline() {
    const auto points = std::as_const(Forma.Pto).all();
    std::vector<double> flat;
    flat.reserve(2 * (points.size() + 1));
    const auto put = [&](const Pto& point) {
        flat.push_back(point.X);
        flat.push_back(point.Y);
    };
    for (const Pto& point : points)
        put(point);
    put(Forma.Pto[0]);
    return flat;
}

/// Going through the small window makes the CAD paint itself.
void bring_to_front(AcadApplication& application) {
    application.ZoomExtents();
    for (const int state : {kMinimised, kMaximised}) {
        application.set_WindowState(state);
        DoEvents();
    }
    platform().cad.AppActivate();
}

void send() {
    state::cad.AcadDocLoaded = False;
    ReconectaAcad();
    if (state::cad.AcadOpen == False)
        return;
    const std::shared_ptr<AcadApplication> application = acad().AcadApp;
    application->Documents_Add(program_file("\\acad.dwt"));
    take_active_document();
    const std::shared_ptr<AcadDocument> drawing = connected_document();
    drawing->Activate();
    drawing->AddLightWeightPolyline(closed_outline())->set_Closed(true);
    bring_to_front(*application);
    platform().windows.minimize("Velmora");
}

} // namespace

void SendToCad() {
    trap(send, [](const RuntimeError& failure) {
        MsgBox("nº: " + CStr(std::int32_t{failure.number}) + "  - Desc: " + description_of(failure),
               buttons::critical, "Error en SendToCad ");
    });
}

} // namespace velmora
