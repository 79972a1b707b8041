#include "forms/intro.h"

#include "adapters/sqlite/sqlite_database.h"
#include "document/session.h"
#include "forms/velmora.h"
#include "services/messages.h"
#include "starting.h"
#include "support/error_number.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace velmora {
namespace {

using test::number_of;
using test::put_database;
using test::StartTest;
using testing::ElementsAre;
using testing::IsEmpty;

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

} // namespace
} // namespace velmora
