#include "formats/reading.h"

#include "document/cancelling.h"
#include "document/session.h"
#include "fakes/recording_platform.h"
#include "fakes/watching.h"
#include "formats/load.h"
#include "formats/sample_files.h"
#include "platform/cancelled.h"
#include "platform/dialogs.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

#ifdef __linux__
#include <sys/stat.h>
#endif

namespace velmora {
namespace {

namespace fs = std::filesystem;
using test::number_of;
using test::RecordingPlatform;

struct ReadingTest : testing::Test {
    RecordingPlatform machine{test::with_database};
    std::string present =
        machine.write("antes.dat", test::sync_file({{"0", "0"}, {"4", "0"}, {"4", "3"}, {"0", "0"}},
                                                   {{"4", "0"}}));

    ReadingTest() { EXPECT_EQ(load(present), -1); }

    static std::int16_t load(const std::string& path) {
        session.Velmora.TxtDat_File = path;
        std::int16_t result = 0;
        CargaFichero(0, result);
        return result;
    }
    void expect_shape_of_before() const {
        EXPECT_EQ(Forma.Pto.upper(), 2);
        EXPECT_EQ(Forma.Pto[1], (Pto{4, 0, 1, 0}));
        EXPECT_EQ(session.FileName, present);
        EXPECT_EQ(session.Velmora.TxtDat_File, present);
        EXPECT_EQ(session.Velmora.TxtDescDat, test::field("ala"));
        EXPECT_EQ(session.TotalSinc, 1);
        EXPECT_EQ(session.wininfo.TxtTotalCtrlPtos, "1");
        EXPECT_EQ(session.Velmora.MousePointer, 0);
        EXPECT_EQ(session.Velmora.Pbar1.Value, 0);
        EXPECT_FALSE(session.files.is_open(1));
    }
    /// A file of so many bytes that takes no room on the disk.
    std::string sparse(const std::string& name, std::uintmax_t bytes) const {
        const std::string path = machine.write(name, "");
        fs::resize_file(path, bytes);
        return path;
    }
    std::string long_dat() const {
        std::string text = "perfil\r\n";
        for (int i = 0; i < 5000; ++i)
            text += std::to_string(i) + ".5 1.25\r\n";
        return machine.write("larga.dat", text);
    }
};

TEST_F(ReadingTest, a_folder_is_refused_by_a_sentence_and_the_shape_stands) {
    fs::create_directory(machine.path("carpeta.dat"));
    EXPECT_EQ(load(machine.path("carpeta.dat")), 0);
    ASSERT_EQ(machine.dialogs.boxes.size(), 1U);
    EXPECT_EQ(machine.dialogs.boxes[0].text,
              "El fichero : " + machine.path("carpeta.dat") +
                  " no es un fichero: es una carpeta, un dispositivo o una tubería, y no se puede "
                  "leer.");
    EXPECT_EQ(machine.dialogs.boxes[0].buttons, 16);
    expect_shape_of_before();
}

#ifdef __linux__
TEST_F(ReadingTest, a_pipe_and_a_device_are_refused_in_every_kind) {
    for (const char* kind : {".dat", ".scr", ".cut", ".dxf"}) {
        const std::string pipe = machine.path("tubo") + kind;
        ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
        EXPECT_EQ(load(pipe), 0);
        expect_shape_of_before();
        const std::string zeros = machine.path("ceros") + kind;
        fs::create_symlink("/dev/zero", zeros);
        EXPECT_EQ(load(zeros), 0);
        expect_shape_of_before();
    }
}

TEST_F(ReadingTest, a_pipe_cannot_be_opened_at_all) {
    const std::string pipe = machine.path("tubo.dat");
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    runtime::FileTable files;
    EXPECT_EQ(number_of([&] { files.open_input(1, pipe); }), 75);
    EXPECT_EQ(number_of([&] { files.open_bytes(1, pipe); }), 75);
    EXPECT_EQ(number_of([&] { files.open_random(1, pipe, 44); }), 75);
    EXPECT_EQ(number_of([&] { files.open_input(1, "/dev/zero"); }), 75);
}
#endif

TEST_F(ReadingTest, a_size_beyond_reason_is_asked_about) {
    struct Case {
        const char* name;
        std::uintmax_t megabytes;
        bool asked;
    };
    for (const Case& c :
         {Case{"uno.dat", 257, true}, Case{"dos.scr", 5000, true}, Case{"tres.dxf", 1025, true},
          Case{"cuatro.dxf", 300, false}, Case{"cinco.dat", 255, false}}) {
        machine.dialogs.boxes.clear();
        machine.dialogs.answers = {answer::no};
        EXPECT_EQ(may_be_read(sparse(c.name, c.megabytes * 1024 * 1024)), !c.asked) << c.name;
        EXPECT_EQ(machine.dialogs.boxes.size(), c.asked ? 1U : 0U) << c.name;
        machine.dialogs.answers.clear();
    }
}

TEST_F(ReadingTest, a_no_to_a_large_file_leaves_the_shape) {
    machine.dialogs.answers = {answer::no};
    EXPECT_EQ(load(sparse("ceros.dat", 5000ULL * 1024 * 1024)), 0);
    EXPECT_TRUE(machine.dialogs.boxes.back().text.ends_with("¿Deseas leerlo? Megabytes: 5000"));
    expect_shape_of_before();
}

TEST_F(ReadingTest, a_line_without_an_end_is_given_up_before_it_fills_the_memory) {
    runtime::FileTable files;
    files.open_input(1, sparse("ceros.dat", 5000ULL * 1024 * 1024));
    EXPECT_EQ(number_of([&] { (void)files.line_input(1); }), 7);
}

TEST_F(ReadingTest, esc_ends_a_reading_at_any_turn_and_the_shape_of_before_stands) {
    const std::string path = long_dat();
    int turns = 0;
    {
        const test::WatchingTurns count([&] { ++turns; });
        ASSERT_EQ(load(path), -1);
        ASSERT_EQ(load(present), -1);
    }
    ASSERT_GT(turns, 1000);
    for (const int last : {2, 3, 4, 50, 1000}) {
        int turn = 0;
        const test::WatchingTurns watching([&] {
            if (++turn == last)
                session.cancel_asked = session.reading;
        });
        EXPECT_EQ(load(path), 0) << last;
        EXPECT_EQ(session.Velmora.StatusBar1,
                  "Lectura cancelada: la forma de antes sigue como estaba.");
        expect_shape_of_before();
    }
}

TEST_F(ReadingTest, esc_before_a_reading_does_not_end_it) {
    session.cancel_asked = true;
    EXPECT_EQ(load(long_dat()), -1);
}

TEST_F(ReadingTest, a_number_that_was_open_before_stays_open_when_a_reading_is_cancelled) {
    session.files.open_input(1, present);
    EXPECT_FALSE(run_or_cancel([] { throw Cancelled{}; }));
    EXPECT_TRUE(session.files.is_open(1));
    EXPECT_FALSE(session.reading);
}

} // namespace
} // namespace velmora
