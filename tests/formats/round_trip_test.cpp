#include "formats/load.h"
#include "formats/outline_writer.h"

#include "document/session.h"
#include "fakes/recording_platform.h"
#include "formats/sample_files.h"
#include "platform/dialogs.h"
#include "runtime/numbers.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace velmora {
namespace {

using test::RecordingPlatform;

enum class Form { sync_dat, script, profile };

void choose(Form form) {
    session.GenDATSinc = flag(form == Form::sync_dat);
    session.GenSCR = flag(form == Form::script);
    session.GenDATPerfil = flag(form == Form::profile);
}

std::vector<Pto> points() {
    const auto all = Forma.Pto.all();
    return {all.begin(), all.end()};
}

void set_points(const std::vector<Pto>& all) {
    Forma.Pto.redim(static_cast<std::int32_t>(all.size()) - 1);
    std::copy(all.begin(), all.end(), Forma.Pto.all().begin());
}

std::int16_t load(const std::string& path) {
    session.Velmora.TxtDat_File = path;
    std::int16_t result = False;
    CargaFichero(0, result);
    return result;
}

/// An outline of 14 points or more: a machine with commas rewrites no shorter file. It holds
/// the origin, its points all different, so that sync points stay their own.
std::vector<Pto> any_outline(std::mt19937& random, int decimals, bool sync) {
    std::uniform_real_distribution<double> spread(-2000, 2000);
    std::vector<Pto> outline(14 + random() % 60);
    for (Pto& point : outline)
        point = {runtime::Round(spread(random), decimals), runtime::Round(spread(random), decimals),
                 static_cast<std::int16_t>(sync ? random() % 2 : 0), 0};
    outline[0] = {0, 0, static_cast<std::int16_t>(sync ? 1 : 0), 0};
    return outline;
}

void expect_round_trip(const std::string& path, const std::vector<Pto>& outline) {
    set_points(outline);
    session.Velmora.TxtDat_File = path;
    ASSERT_EQ(EscribeFichero(), -1);
    Forma.Pto.redim(0);
    ASSERT_EQ(load(path), -1);
    ASSERT_EQ(points(), outline);
}

class RoundTrip : public testing::TestWithParam<char> {};

TEST_P(RoundTrip, every_form_reads_back_through_its_reader) {
    RecordingPlatform platform{test::with_database};
    session.SepDecimal = GetParam();
    session.ZoomFactor = 1;
    std::mt19937 random(1011);
    for (int round = 0; round < 60; ++round) {
        choose(Form::sync_dat);
        expect_round_trip(platform.path("wing.dat"), any_outline(random, 6, true));
        choose(Form::script);
        expect_round_trip(platform.path("wing.scr"), any_outline(random, 5, false));
        choose(Form::profile);
        expect_round_trip(platform.path("perfil.dat"), any_outline(random, 5, false));
    }
    EXPECT_TRUE(platform.dialogs.boxes.empty());
}

INSTANTIATE_TEST_SUITE_P(BothMachines, RoundTrip, testing::Values('.', ','));

TEST(RoundTripOf, each_form_is_detected_as_its_own_type) {
    RecordingPlatform platform{test::with_database};
    std::mt19937 random(3);
    set_points(any_outline(random, 5, false));
    session.Velmora.TxtDat_File = platform.path("perfil.dat");
    choose(Form::profile);
    ASSERT_EQ(EscribeFichero(), -1);
    EXPECT_EQ(GetFileFormat(session.FileName), FileFormat::NOSLW);
    ASSERT_EQ(load(session.FileName), -1);
    EXPECT_EQ(session.Velmora.StatusBar1, "Cargado: PERFIL.DATTipo: NOSLW - Formato no Estandar");
    session.Velmora.TxtDat_File = platform.path("wing.scr");
    choose(Form::script);
    ASSERT_EQ(EscribeFichero(), -1);
    ASSERT_EQ(load(session.FileName), -1);
    EXPECT_EQ(session.Velmora.StatusBar1, "Cargado: WING.SCRTipo: SCR -  Script Autocad");
}

TEST(RoundTripOf, a_short_sync_file_of_a_comma_machine_fails_there) {
    RecordingPlatform platform{test::with_database};
    session.SepDecimal = ',';
    set_points({{0, 0, 1, 0}, {1.5, 0, 0, 0}, {1.5, 2, 0, 0}});
    session.Velmora.TxtDat_File = platform.path("wing.dat");
    ASSERT_EQ(EscribeFichero(), -1);
    EXPECT_EQ(load(session.FileName), 0);
    EXPECT_TRUE(platform.dialogs.boxes.at(0).text.starts_with("Error CargaSLWSINC  nº: 13  - "));
    session.SepDecimal = '.';
    EXPECT_EQ(load(session.FileName), -1);
    EXPECT_EQ(points(), (std::vector<Pto>{{0, 0, 1, 0}, {1.5, 0, 0, 0}, {1.5, 2, 0, 0}}));
}

TEST(RoundTripOf, a_profile_whose_name_looks_like_a_point_ends_in_the_question) {
    RecordingPlatform platform{test::with_database};
    std::mt19937 random(3);
    set_points(any_outline(random, 5, false));
    session.Velmora.TxtDat_File = platform.path("1 ala.dat");
    choose(Form::profile);
    ASSERT_EQ(EscribeFichero(), -1);
    EXPECT_EQ(load(session.FileName), 0);
    EXPECT_TRUE(platform.dialogs.boxes.at(0).text.starts_with("Error CargaNOSLW  nº: 13  - "));
    EXPECT_EQ(platform.dialogs.boxes.at(1).text, "Cancel Load?");
}

TEST(CargaFichero, tabs_are_replaced_from_14_lines_on_before_a_free_text_is_read) {
    RecordingPlatform platform{test::with_database};
    std::string text = "perfil\n";
    for (int i = 0; i < 13; ++i)
        text += std::to_string(i) + "\t" + std::to_string(i * i) + "\n";
    EXPECT_EQ(load(platform.write("wing.dat", text)), -1);
    EXPECT_EQ(Forma.Pto.upper(), 12);
    EXPECT_EQ(Forma.Pto[12], (Pto{12, 144, 0, 0}));
    EXPECT_EQ(RecordingPlatform::read(platform.path("wing.dat")).find('\t'), std::string::npos);
}

// These readers see to the separator by themselves: only a DAT is brought to the machine's.
TEST(CargaFichero, the_other_formats_are_not_rewritten) {
    RecordingPlatform platform{test::with_database};
    std::string script = "pline\r\n";
    std::string cut;
    for (int i = 0; i < 20; ++i) {
        script += std::to_string(i) + "," + std::to_string(i * i) + "\r\n";
        cut += "XG:" + std::to_string(i) + ".5 YG:" + std::to_string(i * i) + ".25 XD:0 YD:0\r\n";
    }
    const auto expect_kept = [&](const std::string& name, const std::string& text) {
        const std::string path = platform.write(name, text);
        EXPECT_EQ(load(path), -1) << name;
        EXPECT_EQ(Forma.Pto.upper(), 19) << name;
        EXPECT_EQ(RecordingPlatform::read(path), text) << name;
    };
    expect_kept("ala.scr", script);
    session.SepDecimal = ',';
    expect_kept("ala.cut", cut);
    EXPECT_TRUE(platform.shell.recycled.empty());
}

// A free text with tabs would be taken once they are blanks; this dialect has no such pass.
TEST(CargaFichero, tabs_stay_in_a_meridol_file_and_its_lines_are_skipped) {
    RecordingPlatform platform{test::with_database};
    std::string text = "MERIDOL\r\n\r\n0 0\r\n1 0\r\n";
    for (int line = 0; line < 12; ++line)
        text += "5.5\t" + std::to_string(line) + "\r\n";
    text += "1 1\r\nSincronismo\r\n\r\n";
    const std::string path = platform.write("ala.dat", text);
    EXPECT_EQ(load(path), -1);
    EXPECT_EQ(points(), (std::vector<Pto>{{0, 0, 0, 0}, {1, 0, 0, 0}, {1, 1, 0, 0}}));
    EXPECT_EQ(RecordingPlatform::read(path), text);
}

TEST(CargaFichero, after_a_refused_script_one_use_of_file_1_meets_error_55) {
    RecordingPlatform platform{test::with_database};
    const std::string script = platform.write("wing.scr", "PLINE\r\n0,0\r\n1,1\r\n");
    const std::string dat =
        platform.write("wing.dat", test::sync_file({{"0", "0"}, {"1", "1"}}, {{"1", "1"}}));
    EXPECT_EQ(load(script), 0);
    EXPECT_TRUE(session.files.is_open(1));
    EXPECT_EQ(load(dat), 0);
    EXPECT_NE(platform.dialogs.boxes.at(1).text.find("Error GetFileFormat  nº:55"),
              std::string::npos);
    EXPECT_EQ(load(dat), -1);
}

TEST(CargaFichero, a_refused_script_makes_the_next_save_raise_55) {
    RecordingPlatform platform{test::with_database};
    EXPECT_EQ(load(platform.write("wing.scr", "PLINE\r\n")), 0);
    Forma.Pto.redim(1);
    session.Velmora.TxtDat_File = platform.path("nuevo.dat");
    EXPECT_EQ(test::number_of([] { EscribeFichero(); }), 55);
}

} // namespace
} // namespace velmora
