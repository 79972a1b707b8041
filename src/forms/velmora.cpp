#include "forms/velmora.h"

#include "cad/connection.h"
#include "document/feedback.h"
#include "document/number_text.h"
#include "document/options.h"
#include "document/recent_files.h"
#include "document/session.h"
#include "platform/database.h"
#include "platform/dialogs.h"
#include "platform/machine.h"
#include "platform/platform.h"
#include "platform/shell.h"
#include "platform/windows.h"
#include "runtime/paths.h"
#include "runtime/text.h"
#include "services/message_codes.h"
#include "services/messages.h"
#include "services/settings.h"
#include "services/stand_in_database.h"
#include "services/window_literals.h"

namespace velmora {

namespace {

constexpr int kGoodbyeMilliseconds = 3000;

void play(std::string_view file) {
    if (session.Sound == 1)
        platform().shell.play(program_file(file));
}

void set_version() {
    session.Ver = "1.0";
    session.SubVer = 1011;
    save_version();
}

void show_version() {
    session.intro.lblVer = "Ver. " + session.Ver;
    session.intro.lblsubver = CStr(std::int32_t{session.SubVer});
}

void take_working_copies() {
    session.PutArc = session.Def_Arc;
    session.PutCircle = session.Def_ACircle;
    session.Precision = session.Def_Dec;
    session.ZoomFactor = session.Def_Zoom;
}

void set_flags() {
    session.ShowPtos = session.ShowPtosCtrl = session.GenDATSinc = session.ShowCoords = True;
    session.OptimizeOnGen = session.RedimCapture = True;
    session.GenSCR = session.GenDATPerfil = False;
}

std::string told(const RuntimeError& failure) {
    return "nº: " + CStr(std::int32_t{failure.number}) + "  - Desc: " + description_of(failure);
}

// A file that is missing leaves the program with its design texts and without messages. One that
// can't be read has another in its place, and the user is told.
void open_language_database() {
    session.language_database_open = false;
    session.language_database_fault.clear();
    const std::string file = program_file("\\VELMORA.MDB");
    if (!runtime::file_exists(file))
        return;
    trap(
        [&] {
            platform().database.open(file);
            session.language_database_open = true;
        },
        [&](const RuntimeError& failure) {
            session.language_database_fault = file + "\n" + told(failure);
            open_stand_in_database();
        });
}

void close_language_database() {
    close_messages();
    platform().database.close();
    session.language_database_open = false;
}

void reset_modes() {
    session.ExitConfirmed = 0;
    session.FirstActivate = True;
    session.PtoSelAnt = -1;
    session.MoveShapeMode = session.PtosToInsertMode = False;
    session.AcadOpen = session.AcadDocLoaded = session.SelOrigenActivo = False;
    session.DefExt = ".dat";
}

void reset_numbers() {
    session.Velmora.Pbar1 = session.Velmora.pbar2 = ProgressBar{.Min = 0, .Max = 1, .Value = 0};
    session.LimiteCoord = 25000;
    session.PI = 3.14159265358979;
    session.SepDecimal = platform().machine.decimal_separator();
    Forma.Pto.redim(0);
}

std::string credit() {
    std::string text;
    trap([&] { text = GetMensaje(mensaje::credit); }, [](const RuntimeError&) {});
    return text;
}

std::string main_caption() {
    return "Velmora " + session.Ver + " (" + CStr(std::int32_t{session.SubVer}) + ") " + credit();
}

void take_colours() {
    session.Velmora.pic_BackColor = session.cl_fondo;
    session.Velmora.lbl_xyfloat_ForeColor = session.cl_coords;
}

void tell_of_data_files() {
    for (const std::string& file : session.kept_aside)
        MsgBox(GetMensaje(mensaje::kept_aside) + "\n\n" + file, buttons::information, box_title());
    if (!session.language_database_fault.empty())
        MsgBox(GetMensaje(mensaje::stand_in_texts) + "\n\n" + session.language_database_fault,
               buttons::exclamation, box_title());
    session.kept_aside.clear();
}

void end_with_everything_closed() {
    Forma.Pto.redim(0);
    platform().windows.unload("wininfo");
    platform().windows.unload("winoptions");
    close_language_database();
    platform().windows.end_program();
}

} // namespace

void intro_Load() {
    set_version();
    session.Sound = read_sound();
    show_version();
    play("\\mdbwav0.wav");
    LeeSettings();
    take_working_copies();
    set_flags();
    open_language_database();
    load_literals("intro");
}

void Velmora_Load() {
    reset_modes();
    reset_numbers();
    session.Velmora.Caption = main_caption();
    load_literals("Velmora");
    GetRecentFiles();
    take_defaults();
    take_colours();
}

void wininfo_Load() {
    load_literals("wininfo");
}

void winoptions_Load() {
    load_literals("winoptions");
    LeeSettings();
    take_defaults();
    WinOptions& box = session.winoptions;
    box.ChkPtos = session.ShowPtos != False;
    box.ChkPtosCtrl = session.ShowPtosCtrl != False;
    box.ChkCoords = session.ShowCoords != False;
    box.ChkDATSinc = session.GenDATSinc != False;
    box.ChkSCR = session.GenSCR != False;
    box.Chk_DATPerfil = session.GenDATPerfil != False;
    box.chk_optimize = session.OptimizeOnGen != False;
    box.chk_Redim_Capture = session.RedimCapture != False;
}

void Velmora_Activate() {
    if (session.FirstActivate == False)
        return;
    session.FirstActivate = False;
    session.NoRedraw = True;
    ReconectaAcad();
    platform().windows.show("wininfo");
    platform().windows.show("winoptions");
    tell_of_data_files();
    platform().windows.set_focus("Velmora", "pic");
}

void Velmora_QueryUnload() {
    platform().windows.unload("winoptions");
    platform().windows.unload("wininfo");
    platform().windows.end_program();
}

void SalVelmora(std::int16_t& cancel) {
    if (session.ExitConfirmed != 0)
        return;
    if (MuestraMensaje(mensaje::confirm_exit) != answer::yes) {
        cancel = True;
        session.ExitConfirmed = 1;
        return;
    }
    if (session.Sound == 1) {
        play("\\mdbwav7.wav");
        platform().windows.wait(kGoodbyeMilliseconds);
    }
    end_with_everything_closed();
}

void AbreEdicion() {
    const std::string& file = session.Velmora.TxtDat_File;
    if (runtime::Trim(file).empty())
        return;
    if (runtime::file_exists(file))
        platform().shell.open(file);
    else
        MuestraMensaje(mensaje::file_not_found);
}

} // namespace velmora
