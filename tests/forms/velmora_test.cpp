#include "forms/velmora.h"

#include "commands/handlers.h"
#include "document/session.h"
#include "fakes/put_in_place.h"
#include "fakes/recording_platform.h"
#include "forms/intro.h"
#include "services/messages.h"
#include "starting.h"
#include "support/error_number.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace velmora {
namespace {

using test::number_of;
using test::RecordingPlatform;
using test::StartTest;
using testing::ElementsAre;
using testing::IsEmpty;

TEST_F(StartTest, the_main_window_resets_the_session) {
    Session& s = session;
    s.ExitConfirmed = 1;
    s.FirstActivate = False;
    s.PtoSelAnt = 4;
    s.MoveShapeMode = s.PtosToInsertMode = s.AcadOpen = s.AcadDocLoaded = True;
    s.SelOrigenActivo = True;
    s.DefExt = ".scr";
    s.LimiteCoord = s.PI = 0;
    s.Velmora.Pbar1 = s.Velmora.pbar2 = {.Min = 3, .Max = 9, .Value = 5};
    machine.machine.separator = ',';
    Forma.Pto.redim(7);
    intro_Load();
    Velmora_Load();
    EXPECT_EQ(s.ExitConfirmed, 0);
    EXPECT_EQ(s.FirstActivate, True);
    EXPECT_EQ(s.PtoSelAnt, -1);
    for (const Flag off :
         {s.MoveShapeMode, s.PtosToInsertMode, s.AcadOpen, s.AcadDocLoaded, s.SelOrigenActivo})
        EXPECT_EQ(off, 0);
    EXPECT_EQ(s.DefExt, ".dat");
    EXPECT_EQ(s.LimiteCoord, 25000);
    EXPECT_EQ(s.PI, 3.14159265358979);
    EXPECT_EQ(s.SepDecimal, ',');
    EXPECT_EQ(Forma.Pto.upper(), 0);
    for (const ProgressBar& bar : {s.Velmora.Pbar1, s.Velmora.pbar2}) {
        EXPECT_EQ(bar.Min, 0);
        EXPECT_EQ(bar.Max, 1);
        EXPECT_EQ(bar.Value, 0);
    }
}

TEST_F(StartTest, the_caption_has_version_and_credit_and_the_literals_leave_it) {
    main.own_caption = "de la forma";
    auto& entry = main.add("mnu_openfile", ControlKind::other);
    intro_Load();
    Velmora_Load();
    EXPECT_EQ(session.Velmora.Caption,
              "Velmora 1.0 (1011) - Coordenadas para corte CNC por hilo caliente");
    EXPECT_EQ(main.own_caption, "de la forma");
    EXPECT_THAT(entry.texts, ElementsAre("Abrir"));
}

TEST_F(StartTest, the_recent_files_and_the_colours_come_with_the_main_window) {
    machine.settings.save("RecentFiles", "RecentFile1", "C:\\ala.dat");
    machine.settings.save("Colors", "cl_fondo", "16777215");
    machine.settings.save("Colors", "cl_coords", "255");
    intro_Load();
    Velmora_Load();
    EXPECT_EQ(session.Velmora.mnuRecentFile[1].caption, "&1 ala.dat");
    EXPECT_EQ(session.Velmora.pic_BackColor, 16777215U);
    EXPECT_EQ(session.Velmora.lbl_xyfloat_ForeColor, 255U);
}

TEST_F(StartTest, the_main_window_fills_the_option_boxes) {
    machine.settings.save("Values", "Def_Arc", "11");
    machine.settings.save("Values", "Def_ACircle", "12");
    machine.settings.save("Values", "Def_Dec", "3");
    machine.settings.save("Values", "Def_Zoom", "40.5");
    intro_Load();
    session.PutArc = session.PutCircle = session.Precision = 99;
    session.ZoomFactor = 99;
    Velmora_Load();
    EXPECT_EQ(session.winoptions.TxtPutArc, "11");
    EXPECT_EQ(session.winoptions.TxtPutCircle, "12");
    EXPECT_EQ(session.winoptions.TxtPrecision, "3");
    EXPECT_EQ(session.winoptions.Txt_zoom, "40.5");
    EXPECT_EQ(session.PutArc, 11);
    EXPECT_EQ(session.PutCircle, 12);
    EXPECT_EQ(session.Precision, 3);
    EXPECT_EQ(session.ZoomFactor, 40.5);
}

TEST_F(StartTest, what_gave_way_to_a_newer_file_is_told) {
    session.kept_aside = {"/home/ana/VELMORA-1.MDB"};
    intro_Load();
    Velmora_Load();
    Velmora_Activate();
    ASSERT_EQ(machine.dialogs.boxes.size(), 2U);
    EXPECT_EQ(machine.dialogs.boxes[1].text,
              "Un fichero tuyo era distinto del que trae el programa y se ha renovado. El tuyo se "
              "ha guardado con otro nombre:\n\n/home/ana/VELMORA-1.MDB");
}

TEST_F(StartTest, a_folder_that_stands_in_for_the_users_is_told_in_passing) {
    intro_Load();
    Velmora_Load();
    session.program_folder = "/tmp/Velmora";
    session.folder_stands_in = true;
    Velmora_Activate();
    EXPECT_EQ(session.Velmora.lbl_notice,
              "No se puede escribir en la carpeta de datos; hace sus veces: /tmp/Velmora");
    EXPECT_EQ(machine.dialogs.boxes.size(), 1U) << "the box that no CAD is there, as ever";
}

// Running and leaving.

struct ApplicationTest : testing::Test {
    RecordingPlatform machine{test::with_database};
    std::int16_t cancel = 0;

    void answer_no() { machine.dialogs.answers.push_back(answer::no); }
    std::size_t boxes() { return machine.dialogs.boxes.size(); }
    bool ended() { return !machine.windows.calls.empty() && machine.windows.calls.back() == "end"; }
};

TEST_F(ApplicationTest, only_the_first_activation_does_something) {
    session.FirstActivate = True;
    session.NoRedraw = False;
    Velmora_Activate();
    EXPECT_EQ(session.FirstActivate, False);
    EXPECT_EQ(session.NoRedraw, True);
    EXPECT_EQ(boxes(), 1U);
    EXPECT_THAT(machine.windows.calls,
                ElementsAre("show wininfo", "show winoptions", "focus Velmora.pic"));
    Velmora_Activate();
    EXPECT_EQ(boxes(), 1U);
    EXPECT_EQ(machine.windows.calls.size(), 3U);
}

TEST_F(ApplicationTest, the_connection_meets_an_activated_window_without_redraw) {
    struct Watcher : test::NoCad {
        Flag first = True;
        Flag no_redraw = False;
        std::size_t windows_shown = 99;
        test::RecordingWindows* windows = nullptr;
        std::shared_ptr<AcadApplication> GetObject() override {
            first = session.FirstActivate;
            no_redraw = session.NoRedraw;
            windows_shown = windows->calls.size();
            return NoCad::GetObject();
        }
    } cad;
    cad.windows = &machine.windows;
    test::put_in_place(cad);
    Velmora_Activate();
    EXPECT_EQ(cad.first, False);
    EXPECT_EQ(cad.no_redraw, True);
    EXPECT_EQ(cad.windows_shown, 0U);
}

TEST_F(ApplicationTest, a_No_cancels_and_silences_the_key_until_the_menu_asks) {
    answer_no();
    SalVelmora(cancel);
    EXPECT_EQ(cancel, -1);
    EXPECT_EQ(session.ExitConfirmed, 1);
    EXPECT_EQ(machine.dialogs.boxes[0].text, "Estás seguro de querer salir de Velmora?");
    K_EXIT();
    K_EXIT();
    EXPECT_EQ(boxes(), 1U);
    answer_no();
    mnu_exit();
    EXPECT_EQ(boxes(), 2U);
    K_EXIT();
    EXPECT_EQ(boxes(), 2U);
    mnu_exit();
    EXPECT_EQ(boxes(), 3U);
    EXPECT_TRUE(ended());
}

TEST_F(ApplicationTest, while_the_answer_stands_SalVelmora_does_nothing_at_all) {
    session.ExitConfirmed = 1;
    SalVelmora(cancel);
    EXPECT_EQ(cancel, 0);
    EXPECT_EQ(boxes(), 0U);
    EXPECT_THAT(machine.windows.calls, IsEmpty());
}

TEST_F(ApplicationTest, a_Yes_closes_everything_in_order) {
    Forma.Pto.redim(5);
    Forma.Pto[0].X = 3;
    K_EXIT();
    EXPECT_EQ(cancel, 0);
    EXPECT_THAT(machine.shell.played, ElementsAre(program_file("\\mdbwav7.wav")));
    EXPECT_THAT(machine.windows.calls,
                ElementsAre("wait 3000", "unload wininfo", "unload winoptions", "end"));
    EXPECT_EQ(Forma.Pto.upper(), 0);
    EXPECT_EQ(Forma.Pto[0], Pto{});
    EXPECT_FALSE(machine.database->is_open());
    EXPECT_FALSE(session.language_database_open);
    EXPECT_EQ(number_of([] { (void)MuestraMensaje(37); }), 91);
}

TEST_F(ApplicationTest, without_sound_leaving_neither_plays_nor_waits) {
    session.Sound = 0;
    mnu_exit();
    EXPECT_THAT(machine.shell.played, IsEmpty());
    EXPECT_THAT(machine.windows.calls, ElementsAre("unload wininfo", "unload winoptions", "end"));
}

TEST_F(ApplicationTest, the_close_box_never_asks) {
    Velmora_QueryUnload();
    EXPECT_EQ(boxes(), 0U);
    EXPECT_THAT(machine.shell.played, IsEmpty());
    EXPECT_THAT(machine.windows.calls, ElementsAre("unload winoptions", "unload wininfo", "end"));
}

TEST_F(ApplicationTest, without_a_database_leaving_by_the_menu_raises_91) {
    close_messages();
    machine.database->close();
    EXPECT_EQ(number_of([] { mnu_exit(); }), 91);
}

TEST_F(ApplicationTest, editing_opens_the_file_with_its_program) {
    session.Velmora.TxtDat_File = machine.write("ala.dat", "x");
    mnu_edit();
    EXPECT_THAT(machine.shell.opened, ElementsAre(session.Velmora.TxtDat_File));
    EXPECT_EQ(boxes(), 0U);
}

TEST_F(ApplicationTest, editing_a_missing_file_shows_message_84_and_no_name_nothing) {
    for (const char* blank : {"", "   "}) {
        session.Velmora.TxtDat_File = blank;
        AbreEdicion();
    }
    EXPECT_EQ(boxes(), 0U);
    session.Velmora.TxtDat_File = machine.path("nada.dat");
    AbreEdicion();
    ASSERT_EQ(boxes(), 1U);
    EXPECT_EQ(machine.dialogs.boxes[0].text, "Archivo no encontrado");
    EXPECT_THAT(machine.shell.opened, IsEmpty());
}

TEST_F(ApplicationTest, the_side_windows_are_brought_up) {
    mnu_wininfo();
    mnu_winoptgen();
    EXPECT_THAT(machine.windows.calls, ElementsAre("show wininfo", "show winoptions"));
}

} // namespace
} // namespace velmora
