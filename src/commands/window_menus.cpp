// The commands of the menus mnu_config, mnuherra, mnu_ver and mnu_hlp: they bring up windows.
#include "canvas/fit.h"
#include "commands/handlers.h"
#include "document/refresh.h"
#include "document/state/program.h"
#include "document/state/view_choices.h"
#include "platform/platform.h"
#include "platform/program_windows.h"
#include "platform/settings_store.h"
#include "platform/shell.h"
#include "services/help.h"
#include "services/shape_at_hand.h"
#include "services/view_choices.h"

namespace velmora {

namespace {

// Where the choice can't be kept it holds for this time, without a word.
void turn_over(Flag& choice) {
    choice = flag(choice == False);
    write_view_choices();
    (void)platform().settings.keep();
}

} // namespace

// The colours are in force as soon as they are picked, so the canvas is drawn after a cancel too.
void mnu_paramgenerales() {
    platform().windows.show_modal("setup");
    Dibuja();
}

void mnu_seltexto() {
    platform().windows.show_modal("seltexto");
}

void mnu_corrpoltrap() {
    platform().windows.show_modal("ajuste");
}

void mnu_paralela() {
    if (!shape_at_hand())
        return;
    platform().windows.show_modal("Compensa");
    Dibuja();
}

void mnu_wininfo() {
    platform().windows.show("wininfo");
}

void mnu_winoptgen() {
    platform().windows.show("winoptions");
}

void mnu_fit_shape() {
    if (shape_at_hand())
        fit_shape();
}

void mnu_fit_point() {
    if (shape_at_hand())
        fit_selected_point();
}

void mnu_rulers() {
    turn_over(state::view_choices.ShowRulers);
}

void mnu_position() {
    turn_over(state::view_choices.ShowPosition);
}

void mnu_contenido() {
    platform().shell.open(program_file("\\velmora.chm"));
}

void mnu_mail() {
    write_to_support();
}

void mnu_web() {
    open_web_page();
}

void mnu_Shortkeys() {
    platform().windows.show_modal("teclas");
}

void mnu_about() {
    platform().windows.show_modal("acerca");
}

} // namespace velmora
