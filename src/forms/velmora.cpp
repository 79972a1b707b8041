#include "forms/velmora.h"

#include "cad/connection.h"
#include "document/feedback.h"
#include "document/flag.h"
#include "document/forma.h"
#include "document/number_text.h"
#include "document/options.h"
#include "document/recent_files.h"
#include "document/state/cad.h"
#include "document/state/document.h"
#include "document/state/loading.h"
#include "document/state/program.h"
#include "document/state/view.h"
#include "document/windows/velmora.h"
#include "platform/database.h"
#include "platform/dialogs.h"
#include "platform/machine.h"
#include "platform/platform.h"
#include "platform/program_windows.h"
#include "platform/shell.h"
#include "runtime/paths.h"
#include "runtime/text.h"
#include "services/message_codes.h"
#include "services/messages.h"
#include "services/sound.h"
#include "services/view_choices.h"
#include "services/window_literals.h"

namespace velmora {

namespace {

constexpr int kGoodbyeMilliseconds = 3000;

void close_language_database() {
    close_messages();
    platform().database.close();
    state::program.language_database_open = false;
}

void reset_modes() {
    state::program.ExitConfirmed = 0;
    state::program.FirstActivate = True;
    state::document.PtoSelAnt = -1;
    state::view.MoveShapeMode = state::view.PtosToInsertMode = False;
    state::cad.AcadOpen = state::cad.AcadDocLoaded = state::cad.SelOrigenActivo = False;
    state::document.DefExt = ".dat";
}

void reset_numbers() {
    state::Velmora.Pbar1 = state::Velmora.pbar2 = ProgressBar{.Min = 0, .Max = 1, .Value = 0};
    state::loading.LimiteCoord = 25000;
    state::program.PI = 3.14159265358979;
    state::program.SepDecimal = platform().machine.decimal_separator();
    Forma.Pto.redim(0);
}

std::string credit() {
    std::string text;
    trap([&] { text = GetMensaje(message::credit); }, [](const RuntimeError&) {});
    return text;
}

std::string main_caption() {
    return "Velmora " + state::program.Ver + " (" + CStr(std::int32_t{state::program.SubVer}) +
           ") " + credit();
}

void tell_of_data_files() {
    for (const std::string& file : state::program.kept_aside)
        MsgBox(GetMensaje(message::kept_aside) + "\n\n" + file, buttons::information, box_title());
    if (!state::program.language_database_fault.empty())
        MsgBox(GetMensaje(message::stand_in_texts) + "\n\n" +
                   state::program.language_database_fault,
               buttons::exclamation, box_title());
    state::program.kept_aside.clear();
}

/// What the program lays there may be gone at the next start.
void tell_of_stand_in() {
    if (state::program.folder_stands_in)
        state::Velmora.lbl_notice =
            quiet_text(message::folder_stands_in) + " " + state::program.program_folder;
}

void end_with_everything_closed() {
    Forma.Pto.redim(0);
    platform().windows.unload("wininfo");
    platform().windows.unload("winoptions");
    close_language_database();
    platform().windows.end_program();
}

} // namespace

void Velmora_Load() {
    reset_modes();
    reset_numbers();
    state::Velmora.Caption = main_caption();
    load_literals("Velmora");
    GetRecentFiles();
    read_view_choices();
    take_defaults();
    take_colours();
}

void Velmora_Activate() {
    if (state::program.FirstActivate == False)
        return;
    state::program.FirstActivate = False;
    state::view.NoRedraw = True;
    ReconectaAcad();
    platform().windows.show("wininfo");
    platform().windows.show("winoptions");
    tell_of_data_files();
    tell_of_stand_in();
    platform().windows.set_focus("Velmora", "pic");
}

void Velmora_QueryUnload() {
    platform().windows.unload("winoptions");
    platform().windows.unload("wininfo");
    platform().windows.end_program();
}

void SalVelmora(std::int16_t& cancel) {
    if (state::program.ExitConfirmed != 0)
        return;
    if (MuestraMensaje(message::confirm_exit) != answer::yes) {
        cancel = True;
        state::program.ExitConfirmed = 1;
        return;
    }
    if (state::program.Sound == 1) {
        play_sound("\\mdbwav7.wav");
        platform().windows.wait(kGoodbyeMilliseconds);
    }
    end_with_everything_closed();
}

void AbreEdicion() {
    const std::string& file = state::Velmora.TxtDat_File;
    if (runtime::Trim(file).empty())
        return;
    if (runtime::file_exists(file))
        platform().shell.open(file);
    else
        MuestraMensaje(message::file_not_found);
}

} // namespace velmora
