// The canvas's commands.
#include "canvas/background.h"
#include "canvas/print.h"
#include "canvas/surface.h"
#include "canvas/zoom.h"
#include "document/handlers.h"
#include "document/number_text.h"
#include "document/refresh.h"
#include "document/session.h"
#include "platform/platform.h"

namespace velmora {

namespace {

void zoom_to(double zoom) {
    session.ZoomFactor = zoom;
    session.winoptions.Txt_zoom = CStr(zoom);
    Define_Layout();
    Dibuja();
}

} // namespace

void mnu_zoom_up() {
    zoom_to(zoom_above(session.ZoomFactor));
}

void mnu_zoom_down() {
    if (session.ZoomFactor <= 1)
        return;
    zoom_to(zoom_below(session.ZoomFactor));
}

void mnu_print() {
    PrintPic();
}

void mnu_loadimg() {
    CargaImagen();
}

void mnu_delimg() {
    platform().pic.set_picture("");
    platform().pic.present();
    Dibuja_unless_NoRedraw();
}

} // namespace velmora
