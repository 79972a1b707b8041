#include "forms/velmora.h"

#include "adapters/sqlite/sqlite_database.h"
#include "commands/handlers.h"
#include "document/session.h"
#include "services/fake_form.h"
#include "services/messages.h"
#include "support/error_number.h"
#include "support/places.h"
#include "support/recording_platform.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace velmora {
namespace {

using test::FakeForm;
using test::number_of;
using test::RecordingPlatform;
using testing::ElementsAre;
using testing::IsEmpty;

void put_database(const RecordingPlatform& machine) {
    std::filesystem::copy_file(test::built_database(), machine.folder / "VELMORA.MDB",
                               std::filesystem::copy_options::overwrite_existing);
}

// Before the start: no database open, the program's own file in its folder.
struct StartTest : testing::Test {
    RecordingPlatform machine{true};
    FakeForm intro{"intro"};
    FakeForm main{"Velmora"};

    StartTest() {
        put_database(machine);
        machine.windows.forms = {{"intro", &intro}, {"Velmora", &main}};
    }
};

TEST_F(StartTest, intro_stores_and_shows_the_version) {
    session.Ver = "?";
    session.SubVer = 0;
    intro_Load();
    EXPECT_EQ(session.Ver, "1.0");
    EXPECT_EQ(session.SubVer, 1011);
    EXPECT_EQ(machine.settings.get("Values", "Ver"), "1.0");
    EXPECT_EQ(machine.settings.get("Values", "SubVer"), "1011");
    EXPECT_EQ(session.intro.lblVer, "Ver. 1.0");
    EXPECT_EQ(session.intro.lblsubver, "1011");
}

TEST_F(StartTest, the_sound_plays_only_when_its_setting_is_1) {
    intro_Load();
    EXPECT_THAT(machine.shell.played, ElementsAre(program_file("\\mdbwav0.wav")));
    for (const char* other : {"0", "2", "-1"}) {
        machine.shell.played.clear();
        machine.settings.save("Values", "sound", other);
        intro_Load();
        EXPECT_THAT(machine.shell.played, IsEmpty()) << other;
    }
}

TEST_F(StartTest, the_settings_give_the_working_copies) {
    machine.settings.save("Values", "Def_Arc", "11");
    machine.settings.save("Values", "Def_ACircle", "12");
    machine.settings.save("Values", "Def_Dec", "3");
    machine.settings.save("Values", "Def_Zoom", "40,5");
    intro_Load();
    EXPECT_EQ(session.PutArc, 11);
    EXPECT_EQ(session.PutCircle, 12);
    EXPECT_EQ(session.Precision, 3);
    EXPECT_EQ(session.ZoomFactor, 40.5);
}

TEST_F(StartTest, a_setting_that_is_no_number_ends_the_start) {
    machine.settings.save("Values", "Def_Zoom", "mucho");
    EXPECT_EQ(number_of([] { intro_Load(); }), 13);
}

TEST_F(StartTest, the_flags_take_their_first_values) {
    Session& s = session;
    s.ShowPtos = s.ShowPtosCtrl = s.GenDATSinc = s.ShowCoords = False;
    s.OptimizeOnGen = s.RedimCapture = False;
    s.GenSCR = s.GenDATPerfil = True;
    intro_Load();
    for (const Flag on :
         {s.ShowPtos, s.ShowPtosCtrl, s.GenDATSinc, s.ShowCoords, s.OptimizeOnGen, s.RedimCapture})
        EXPECT_EQ(on, -1);
    EXPECT_EQ(s.GenSCR, 0);
    EXPECT_EQ(s.GenDATPerfil, 0);
}

TEST_F(StartTest, the_database_is_opened_and_intro_takes_its_literals) {
    auto& label = intro.add("lblVelmora", ControlKind::other);
    intro_Load();
    EXPECT_TRUE(session.language_database_open);
    EXPECT_TRUE(machine.database->is_open());
    EXPECT_THAT(label.texts, ElementsAre("Velmora"));
}

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

TEST_F(StartTest, the_options_window_reads_the_settings_and_shows_the_flags) {
    intro_Load();
    Velmora_Load();
    machine.settings.save("Values", "Def_Arc", "17");
    session.ShowPtos = session.GenDATSinc = session.OptimizeOnGen = False;
    session.GenSCR = True;
    winoptions_Load();
    const WinOptions& box = session.winoptions;
    EXPECT_EQ(box.TxtPutArc, "17");
    EXPECT_FALSE(box.ChkPtos);
    EXPECT_TRUE(box.ChkPtosCtrl);
    EXPECT_TRUE(box.ChkCoords);
    EXPECT_FALSE(box.ChkDATSinc);
    EXPECT_TRUE(box.ChkSCR);
    EXPECT_FALSE(box.Chk_DATPerfil);
    EXPECT_FALSE(box.chk_optimize);
    EXPECT_TRUE(box.chk_Redim_Capture);
}

TEST_F(StartTest, side_windows_take_their_literals) {
    FakeForm wininfo("wininfo");
    FakeForm winoptions("winoptions");
    machine.windows.forms["wininfo"] = &wininfo;
    machine.windows.forms["winoptions"] = &winoptions;
    intro_Load();
    for (const char* name : {"wininfo", "winoptions"}) {
        machine.database->execute(std::string("DELETE FROM ") + name);
        machine.database->execute(std::string("INSERT INTO ") + name + " VALUES ('" + name +
                                  "','E','Título','')");
    }
    wininfo_Load();
    winoptions_Load();
    EXPECT_EQ(wininfo.own_caption, "Título");
    EXPECT_EQ(winoptions.own_caption, "Título");
}

// What stands in the place of the language database.

constexpr const char* kNotOpen =
    "Autocad no está abierto en este momento! Abrelo y pulsa Reconectar Acad";

struct StartWithoutDatabaseTest : StartTest {
    test::FakeControl& entry = main.add("mnu_openfile", ControlKind::other);

    StartWithoutDatabaseTest() { entry.texts = {"diseño"}; }

    static void start() {
        intro_Load();
        Velmora_Load();
        Velmora_Activate();
    }
    void expect_design_texts() {
        EXPECT_THAT(entry.texts, ElementsAre("diseño"));
        EXPECT_EQ(session.Velmora.MousePointer, 0);
        EXPECT_THAT(machine.windows.calls,
                    ElementsAre("show wininfo", "show winoptions", "focus Velmora.pic"));
    }
    static std::unique_ptr<Database> other_program() {
        auto other = make_sqlite_database();
        other->open(program_file("\\VELMORA.MDB"));
        return other;
    }
};

TEST_F(StartWithoutDatabaseTest, a_missing_one_leaves_no_messages) {
    std::filesystem::remove(machine.folder / "VELMORA.MDB");
    start();
    expect_design_texts();
    EXPECT_FALSE(session.language_database_open);
    EXPECT_EQ(session.Velmora.Caption, "Velmora 1.0 (1011) ");
    EXPECT_THAT(machine.dialogs.boxes, IsEmpty());
    EXPECT_EQ(number_of([] { (void)MuestraMensaje(37); }), 91);
}

TEST_F(StartWithoutDatabaseTest, one_without_tables_leaves_no_messages) {
    for (const char* table : {"Mensajes", "intro", "Velmora"})
        other_program()->execute(std::string("DROP TABLE ") + table);
    start();
    expect_design_texts();
    EXPECT_TRUE(session.language_database_open);
    EXPECT_EQ(session.Velmora.Caption, "Velmora 1.0 (1011) ");
    EXPECT_THAT(machine.dialogs.boxes, IsEmpty());
    EXPECT_EQ(number_of([] { (void)MuestraMensaje(37); }), 3078);
}

enum class Fault { empty, no_database, half, locked };

struct StartWithDamagedDatabaseTest : StartWithoutDatabaseTest, testing::WithParamInterface<Fault> {
    std::unique_ptr<Database> locker;

    StartWithDamagedDatabaseTest() {
        const auto path = machine.folder / "VELMORA.MDB";
        switch (GetParam()) {
        case Fault::empty:
            machine.write("VELMORA.MDB", "");
            break;
        case Fault::no_database:
            machine.write("VELMORA.MDB", std::string(5000, 'x'));
            break;
        case Fault::half:
            std::filesystem::resize_file(path, std::filesystem::file_size(path) / 2);
            break;
        case Fault::locked:
            locker = other_program();
            locker->execute("BEGIN EXCLUSIVE");
        }
    }
    static int number() { return GetParam() == Fault::locked ? 3008 : 3343; }
};

TEST_P(StartWithDamagedDatabaseTest, the_spanish_messages_stand_in_and_the_user_is_told) {
    session.Idioma = "I";
    machine.settings.save("Values", "Idioma", "I");
    start();
    expect_design_texts();
    EXPECT_FALSE(session.language_database_open);
    EXPECT_EQ(session.Velmora.Caption,
              "Velmora 1.0 (1011) - Coordenadas para corte CNC por hilo caliente");
    ASSERT_EQ(machine.dialogs.boxes.size(), 2U);
    EXPECT_EQ(machine.dialogs.boxes[0].text, kNotOpen);
    const auto& box = machine.dialogs.boxes[1];
    EXPECT_THAT(box.text,
                testing::StartsWith("La base de datos de idiomas no se puede leer. El programa "
                                    "sigue con los textos en español. Fichero:\n\n" +
                                    program_file("\\VELMORA.MDB") +
                                    "\nnº: " + std::to_string(number()) + "  - Desc: "));
    EXPECT_EQ(box.title, "Velmora 1.0");
}

TEST_P(StartWithDamagedDatabaseTest, a_message_keeps_its_buttons) {
    start();
    machine.dialogs.boxes.clear();
    MuestraMensaje(4);
    EXPECT_EQ(machine.dialogs.boxes.at(0).text, "Estás seguro de querer salir de Velmora?");
    EXPECT_EQ(machine.dialogs.boxes.at(0).buttons & 7, buttons::yes_no);
}

TEST_P(StartWithDamagedDatabaseTest, the_next_start_with_a_whole_one_tells_nothing) {
    start();
    close_messages();
    locker.reset();
    put_database(machine);
    machine.dialogs.boxes.clear();
    session.FirstActivate = True;
    start();
    EXPECT_TRUE(session.language_database_open);
    EXPECT_EQ(machine.dialogs.boxes.size(), 1U);
}

INSTANTIATE_TEST_SUITE_P(Faults, StartWithDamagedDatabaseTest,
                         testing::Values(Fault::empty, Fault::no_database, Fault::half,
                                         Fault::locked));

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

// Running and leaving.

struct ApplicationTest : testing::Test {
    RecordingPlatform machine;
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
    set_platform({machine.dialogs, machine.windows, machine.shell, machine.settings,
                  *machine.database, machine.clock, machine.machine, machine.pic, cad});
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
