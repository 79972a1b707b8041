#include "formats/outline_writer.h"

#include "document/session.h"
#include "fakes/recording_platform.h"
#include "fakes/watching.h"
#include "formats/fixed_record_readers.h"
#include "formats/load.h"
#include "formats/sample_files.h"
#include "platform/dialogs.h"
#include "runtime/paths.h"
#include "support/unprivileged.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace velmora {
namespace {

using test::number_of;
using test::record;
using test::RecordingPlatform;
using test::sync_file;

const std::string kLost =
    "El formato que se va a generar, provocará la pérdida de los puntos de sincronimo, desea "
    "continuar?";
const std::string kAddOrigin =
    "La forma no tiene puntos de sincronismo, pulsa OK para añadir el punto de origen como "
    "sincronismo, o Cancelar para poder seleccionar otro formato!";

enum class Form { sync_dat, script, profile };

void choose(Form form) {
    session.GenDATSinc = flag(form == Form::sync_dat);
    session.GenSCR = flag(form == Form::script);
    session.GenDATPerfil = flag(form == Form::profile);
}

/// A triangle with one sync point, to be written to `path`.
void triangle(const std::string& path) {
    Forma.Pto.redim(2);
    Forma.Pto[0] = {0, 0, 0, 0};
    Forma.Pto[1] = {10.5, -0.25, 1, 0};
    Forma.Pto[2] = {1E-05, 123456789012345, 0, 0};
    session.Velmora.TxtDat_File = path;
    session.Velmora.TxtDescDat = " ala ";
}

std::vector<Pto> points() {
    const auto all = Forma.Pto.all();
    return {all.begin(), all.end()};
}

TEST(EscribeFichero, the_sync_form_is_written_to_the_byte) {
    RecordingPlatform platform{test::with_database};
    triangle(platform.path("wing.dat"));
    EXPECT_EQ(EscribeFichero(), -1);
    EXPECT_EQ(session.FileName, platform.path("wing.dat"));
    EXPECT_EQ(RecordingPlatform::read(session.FileName),
              sync_file({{"0", "0"}, {"10.5", "-0.25"}, {"1E-05", "123456789012345"}, {"0", "0"}},
                        {{"10.5", "-0.25"}}));
    EXPECT_FALSE(session.files.is_open(1));
}

TEST(EscribeFichero, the_sync_form_reads_back_the_same) {
    RecordingPlatform platform{test::with_database};
    triangle(platform.path("wing.dat"));
    const std::vector<Pto> before = points();
    EXPECT_EQ(EscribeFichero(), -1);
    EXPECT_EQ(GetFileFormat(session.FileName), FileFormat::SLWSINC);
    EXPECT_EQ(CargaSLWSINC(session.FileName), -1);
    EXPECT_EQ(points(), before);
    EXPECT_EQ(session.Velmora.TxtDescDat, test::field("ala"));
    EXPECT_EQ(session.TotalSinc, 1);
}

TEST(EscribeFichero, a_description_is_cut_at_21_characters_and_an_empty_one_is_blank) {
    struct Case {
        std::string description;
        std::string field2;
    };
    for (const Case& c :
         std::vector<Case>{{"", ""},
                           {"   ", ""},
                           {"ABCDEFGHIJKLMNOPQRSTUVWXYZ1234", "ABCDEFGHIJKLMNOPQRSTU"},
                           {"ñandú €", "\xF1"
                                       "and\xFA \x80"},
                           {"ala\nizquierda", "ala izquierda"},
                           {"\r\nala\t\x7F"
                            "2\n",
                            "ala  2"},
                           {"uno\xC2\x85"
                            "dos",
                            "uno dos"},
                           {"ñññññññññññññññññññññZZZ", std::string(21, '\xF1')},
                           {"日本", "??"}}) {
        RecordingPlatform platform{test::with_database};
        triangle(platform.path("wing.dat"));
        session.Velmora.TxtDescDat = c.description;
        EXPECT_EQ(EscribeFichero(), -1);
        EXPECT_EQ(RecordingPlatform::read(session.FileName).substr(0, 44),
                  record("Fichero DAT(KMR)2002", c.field2));
    }
}

TEST(EscribeFichero, a_number_of_more_than_21_characters_is_cut) {
    RecordingPlatform platform{test::with_database};
    triangle(platform.path("wing.dat"));
    Forma.Pto[0].X = -1.23456789012346E-101;
    EXPECT_EQ(EscribeFichero(), -1);
    EXPECT_EQ(RecordingPlatform::read(session.FileName).substr(88, 21), "-1.23456789012346E-10");
}

TEST(EscribeFichero, without_sync_points_OK_makes_the_origin_one) {
    RecordingPlatform platform{test::with_database};
    triangle(platform.path("wing.dat"));
    Forma.Pto[1].Sinc = 0;
    platform.dialogs.answers = {answer::ok};
    EXPECT_EQ(EscribeFichero(), -1);
    EXPECT_EQ(platform.dialogs.boxes.at(0).text, kAddOrigin);
    EXPECT_EQ(platform.dialogs.boxes.at(0).buttons & 15, 1);
    EXPECT_EQ(Forma.Pto[0].Sinc, 1);
    const std::string written = RecordingPlatform::read(session.FileName);
    EXPECT_EQ(written.size(), 44U * (2 + 3 + 1 + 2 + 1));
    EXPECT_TRUE(written.ends_with(record("", "") + record("0", "0")));
}

TEST(EscribeFichero, without_sync_points_Cancel_leaves_head_and_outline) {
    RecordingPlatform platform{test::with_database};
    const std::string path = platform.write("wing.dat", "antes");
    triangle(path);
    Forma.Pto[1].Sinc = 0;
    platform.dialogs.answers = {answer::cancel};
    EXPECT_EQ(EscribeFichero(), 0);
    EXPECT_EQ(
        RecordingPlatform::read(path),
        sync_file({{"0", "0"}, {"10.5", "-0.25"}, {"1E-05", "123456789012345"}, {"0", "0"}}, {}));
    EXPECT_EQ(platform.shell.recycled, std::vector{path});
    EXPECT_FALSE(session.files.is_open(1));
    EXPECT_EQ(Forma.Pto[0].Sinc, 0);
}

TEST(EscribeFichero, the_script_is_written_to_the_byte) {
    RecordingPlatform platform;
    choose(Form::script);
    triangle(platform.path("wing.scr"));
    Forma.Pto[1].Sinc = 0;
    Forma.Pto[2] = {0.123455, -0.000004, 0, 0};
    EXPECT_EQ(EscribeFichero(), -1);
    EXPECT_EQ(RecordingPlatform::read(session.FileName), "pline\r\n"
                                                         "0.00000,0.00000\r\n"
                                                         "10.50000,-0.25000\r\n"
                                                         "0.12346,0.00000\r\n"
                                                         "0.00000,0.00000\r\n"
                                                         "\r\n");
    EXPECT_TRUE(platform.dialogs.boxes.empty());
}

TEST(EscribeFichero, the_profile_is_written_to_the_byte) {
    RecordingPlatform platform{test::with_database};
    choose(Form::profile);
    triangle(platform.path("ala ñ.dat"));
    Forma.Pto[1].Sinc = 0;
    EXPECT_EQ(EscribeFichero(), -1);
    EXPECT_EQ(RecordingPlatform::read(session.FileName), "ALA \xD1.DAT\r\n"
                                                         "0.00000 0.00000\r\n"
                                                         "10.50000 -0.25000\r\n"
                                                         "0.00001 123456789012345.00000\r\n"
                                                         "0.00000 0.00000\r\n");
}

TEST(EscribeFichero, sync_points_that_would_be_lost_are_asked_about) {
    for (const Form form : {Form::script, Form::profile}) {
        RecordingPlatform platform{test::with_database};
        choose(form);
        const std::string path = platform.write("wing.scr", "antes");
        triangle(path);
        platform.dialogs.answers = {answer::no};
        EXPECT_EQ(EscribeFichero(), 0);
        EXPECT_FALSE(runtime::file_exists(path));
        EXPECT_EQ(platform.shell.recycled, std::vector{path});
        EXPECT_EQ(platform.dialogs.boxes.at(0).text, kLost);
        platform.dialogs.answers = {answer::yes};
        EXPECT_EQ(EscribeFichero(), -1);
        EXPECT_TRUE(runtime::file_exists(path));
        EXPECT_EQ(Forma.Pto[1].Sinc, 1);
    }
}

TEST(EscribeFichero, a_comma_machine_writes_points_all_the_same) {
    RecordingPlatform platform{test::with_database};
    session.SepDecimal = ',';
    triangle(platform.path("wing.dat"));
    EXPECT_EQ(EscribeFichero(), -1);
    // The pass that turns the commas loses the last line end.
    std::string expected =
        sync_file({{"0", "0"}, {"10.5", "-0.25"}, {"1E-05", "123456789012345"}, {"0", "0"}},
                  {{"10.5", "-0.25"}});
    expected.resize(expected.size() - 2);
    EXPECT_EQ(RecordingPlatform::read(session.FileName), expected);
    choose(Form::script);
    session.Velmora.TxtDat_File = platform.path("wing.scr");
    EXPECT_EQ(EscribeFichero(), -1);
    EXPECT_EQ(RecordingPlatform::read(session.FileName).find("10.50000,-0.25000"), 24U);
    choose(Form::profile);
    session.Velmora.TxtDat_File = platform.path("perfil.dat");
    EXPECT_EQ(EscribeFichero(), -1);
    EXPECT_EQ(RecordingPlatform::read(session.FileName).find(','), std::string::npos);
}

TEST(EscribeFichero, whole_numbers_keep_the_last_line_end_on_a_comma_machine) {
    RecordingPlatform platform{test::with_database};
    session.SepDecimal = ',';
    triangle(platform.path("wing.dat"));
    Forma.Pto[1] = {10, 2, 1, 0};
    EXPECT_EQ(EscribeFichero(), -1);
    EXPECT_TRUE(RecordingPlatform::read(session.FileName).ends_with(record("10", "2")));
}

TEST(EscribeFichero, a_shorter_file_over_one_that_cannot_be_deleted_is_whole) {
    RecordingPlatform platform{test::with_database};
    platform.shell.recycle_fails = true;
    const std::string path = platform.write("wing.dat", std::string(5000, 'z'));
    triangle(path);
    EXPECT_EQ(EscribeFichero(), -1);
    EXPECT_EQ(RecordingPlatform::read(path).size(), 44U * (2 + 3 + 1 + 2 + 1));
}

TEST(EscribeFichero, the_bar_goes_up_a_step_a_point_and_back_to_0) {
    RecordingPlatform platform{test::with_database};
    triangle(platform.path("wing.dat"));
    Forma.Pto[1].Sinc = 0;
    platform.dialogs.answers = {answer::cancel};
    EXPECT_EQ(EscribeFichero(), 0);
    EXPECT_EQ(session.Velmora.Pbar1.Max, 3);
    EXPECT_EQ(session.Velmora.Pbar1.Value, 3);
    EXPECT_EQ(platform.windows.yields, 4);
    EXPECT_EQ(EscribeFichero(), -1);
    EXPECT_EQ(session.Velmora.Pbar1.Value, 0);
}

TEST(EscribeFichero, faults_of_the_file_rise) {
    RecordingPlatform platform;
    for (const Form form : {Form::sync_dat, Form::script, Form::profile}) {
        choose(form);
        triangle(runtime::path_text(platform.folder));
        Forma.Pto[1].Sinc = 0;
        Forma.Pto[0].Sinc = flag(form == Form::sync_dat) ? 1 : 0;
        EXPECT_EQ(number_of([] { EscribeFichero(); }), 75);
        session.Velmora.TxtDat_File = platform.path("no/wing.dat");
        EXPECT_EQ(number_of([] { EscribeFichero(); }), 76);
    }
}

TEST(EscribeFichero, a_file_1_left_open_raises_55) {
    RecordingPlatform platform;
    triangle(platform.path("wing.dat"));
    session.files.open_input(1, platform.write("otro.scr", "PLINE\r\n"));
    EXPECT_EQ(number_of([] { EscribeFichero(); }), 55);
}

#ifdef __linux__
TEST(EscribeFichero, a_device_is_no_place_for_a_file) {
    for (const Form form : {Form::sync_dat, Form::script, Form::profile}) {
        RecordingPlatform platform{test::with_database};
        choose(form);
        triangle("/dev/null");
        Forma.Pto[1].Sinc = 0;
        EXPECT_EQ(number_of([] { EscribeFichero(); }), 75);
        EXPECT_TRUE(platform.shell.recycled.empty());
    }
}

TEST(EscribeFichero, a_link_gives_way_to_the_file_as_any_other_earlier_file) {
    RecordingPlatform platform{test::with_database};
    platform.shell.recycle_fails = true;
    platform.write("lejos.dat", "kept");
    std::filesystem::create_symlink("lejos.dat", platform.folder / "wing.dat");
    triangle(platform.path("wing.dat"));
    EXPECT_EQ(EscribeFichero(), -1);
    EXPECT_FALSE(std::filesystem::is_symlink(platform.folder / "wing.dat"));
    EXPECT_EQ(RecordingPlatform::read(platform.path("lejos.dat")), "kept");
}

TEST(EscribeFichero, what_a_full_disk_broke_off_is_removed) {
    const test::SmallDisk disk(8192);
    if (!disk.stands())
        GTEST_SKIP() << "this user can't mount a small disk";
    for (const Form form : {Form::sync_dat, Form::script, Form::profile}) {
        RecordingPlatform platform{test::with_database};
        choose(form);
        triangle(disk.path("wing.dat"));
        Forma.Pto.redim(20000);
        Forma.Pto[7].Sinc = 1;
        EXPECT_EQ(number_of([] { EscribeFichero(); }), 61);
        EXPECT_TRUE(std::filesystem::is_empty(disk.path()));
        EXPECT_FALSE(session.files.is_open(1));
    }
}

#endif

TEST(EscribeFichero, a_fault_leaves_the_earlier_file_and_the_number_of_another_use) {
    RecordingPlatform platform;
    triangle(platform.write("wing.dat", "old"));
    session.files.open_input(1, session.Velmora.TxtDat_File);
    EXPECT_EQ(number_of([] { EscribeFichero(); }), 55);
    EXPECT_TRUE(session.files.is_open(1));
    EXPECT_EQ(RecordingPlatform::read(session.Velmora.TxtDat_File), "old");
    EXPECT_TRUE(platform.shell.recycled.empty());
}

TEST(EscribeFichero, the_earlier_file_stands_until_the_new_one_is_whole) {
    for (const Form form : {Form::sync_dat, Form::script, Form::profile}) {
        RecordingPlatform platform{test::with_database};
        choose(form);
        const std::string path = platform.write("wing.dat", "old");
        triangle(path);
        Forma.Pto[1].Sinc = flag(form == Form::sync_dat) ? 1 : 0;
        int steps = 0;
        const test::WatchingTurns turns([&] {
            ++steps;
            EXPECT_EQ(RecordingPlatform::read(path), "old");
        });
        EXPECT_EQ(EscribeFichero(), -1);
        EXPECT_GE(steps, 4);
    }
}

TEST(HayPuntosSinc, only_the_value_1_counts) {
    RecordingPlatform platform;
    Forma.Pto.redim(1);
    EXPECT_FALSE(HayPuntosSinc());
    Forma.Pto[1].Sinc = 2;
    EXPECT_FALSE(HayPuntosSinc());
    Forma.Pto[1].Sinc = 1;
    EXPECT_TRUE(HayPuntosSinc());
}

} // namespace
} // namespace velmora
