// The commands that leave, edit the file outside, and bring up the program's own windows.
#include "document/handlers.h"
#include "document/refresh.h"
#include "document/session.h"
#include "platform/platform.h"
#include "platform/windows.h"
#include "services/application.h"

namespace velmora {

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

void mnu_edit() {
    AbreEdicion();
}

void mnu_wininfo() {
    platform().windows.show("wininfo");
}

void mnu_winoptgen() {
    platform().windows.show("winoptions");
}

// The colours are in force as soon as they are picked, so the canvas is drawn after a cancel too.
void mnu_paramgenerales() {
    platform().windows.show_modal("setup");
    Dibuja();
}

void mnu_Shortkeys() {
    platform().windows.show_modal("teclas");
}

void mnu_about() {
    platform().windows.show_modal("acerca");
}

} // namespace velmora
