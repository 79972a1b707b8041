#include "forms/intro.h"

#include "document/feedback.h"
#include "document/flag.h"
#include "document/number_text.h"
#include "document/options.h"
#include "document/state/options.h"
#include "document/state/program.h"
#include "document/state/view.h"
#include "document/windows/intro.h"
#include "platform/database.h"
#include "platform/platform.h"
#include "runtime/error.h"
#include "runtime/paths.h"
#include "services/settings.h"
#include "services/sound.h"
#include "services/stand_in_database.h"
#include "services/window_literals.h"

#include <string>

namespace velmora {

namespace {

void set_version() {
    state::program.Ver = "1.0";
    state::program.SubVer = 1011;
    save_version();
}

void show_version() {
    state::intro.lblVer = "Ver. " + state::program.Ver;
    state::intro.lblsubver = CStr(std::int32_t{state::program.SubVer});
}

void set_flags() {
    state::view.ShowPtos = state::view.ShowPtosCtrl = state::options.GenDATSinc =
        state::view.ShowCoords = True;
    state::options.OptimizeOnGen = state::options.RedimCapture = True;
    state::options.GenSCR = state::options.GenDATPerfil = False;
}

std::string told(const RuntimeError& failure) {
    return "nº: " + CStr(std::int32_t{failure.number}) + "  - Desc: " + description_of(failure);
}

// A file that is missing leaves the program with its design texts and without messages. One that
// can't be read has another in its place, and the user is told.
void open_language_database() {
    state::program.language_database_open = false;
    state::program.language_database_fault.clear();
    const std::string file = program_file("\\VELMORA.MDB");
    if (!runtime::file_exists(file))
        return;
    trap(
        [&] {
            platform().database.open(file);
            state::program.language_database_open = true;
        },
        [&](const RuntimeError& failure) {
            state::program.language_database_fault = file + "\n" + told(failure);
            open_stand_in_database();
        });
}

} // namespace

void intro_Load() {
    set_version();
    state::program.Sound = read_sound();
    show_version();
    play_sound("\\mdbwav0.wav");
    LeeSettings();
    take_working_copies();
    set_flags();
    open_language_database();
    load_literals("intro");
}

} // namespace velmora
