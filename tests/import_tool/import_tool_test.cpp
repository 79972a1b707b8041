#include "import_tool/run.h"

#include "import_tool/outline_text.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace velmora::import_tool {
namespace {

const std::string foil = "t\n1 0\n.5 .1\n0 0\n.5 -.1\n1 0\nend\n";

std::string record(std::string first, std::string second) {
    first.resize(21, ' ');
    second.resize(21, ' ');
    return first + second + "\r\n";
}

std::optional<Arguments> read(const std::vector<std::string>& words) {
    std::string fault;
    return arguments_of(words, fault);
}

std::string fault_of(const std::vector<std::string>& words) {
    std::string fault;
    static_cast<void>(arguments_of(words, fault));
    return fault;
}

TEST(ImportTool, understands_its_command_line) {
    const auto all = read({"--to", "out", "--chord", "200", "--tolerance", ".05", "--as", "plain",
                           "--json", "--points", "--check", "--all", "a.dat", "--", "--b.dxf"});
    ASSERT_TRUE(all);
    EXPECT_EQ(all->folder, "out");
    EXPECT_EQ(all->chord_mm, 200);
    EXPECT_EQ(all->tolerance_mm, 0.05);
    EXPECT_EQ(all->form, Form::plain);
    EXPECT_TRUE(all->json && all->points && all->check && all->all);
    EXPECT_EQ(all->files, (std::vector<std::string>{"a.dat", "--b.dxf"}));
    EXPECT_EQ(read({"a"})->form, Form::sync);
    EXPECT_TRUE(read({"--help"})->help);
}

TEST(ImportTool, says_what_it_does_not_understand) {
    EXPECT_EQ(fault_of({}), "no file is named");
    EXPECT_EQ(fault_of({"--what", "a"}), "unknown option --what");
    EXPECT_EQ(fault_of({"a", "--to"}), "--to needs a value");
    EXPECT_EQ(fault_of({"a", "--chord", "-5"}), "--chord needs a length above 0, not -5");
    EXPECT_EQ(fault_of({"a", "--chord", "long"}), "--chord needs a length above 0, not long");
    EXPECT_EQ(fault_of({"a", "--as", "dwg"}), "--as takes sync, plain or scr, not dwg");
}

TEST(ImportTool, writes_the_three_forms) {
    const imports::Chain chain{.points = {{1, 0}, {0.123456789, 0.5}, {0, -1}}, .closed = true};
    EXPECT_EQ(outline_text(chain, Form::plain, "Rib"),
              "RIB\r\n1.00000 0.00000\r\n0.12346 0.50000\r\n0.00000 -1.00000\r\n"
              "1.00000 0.00000\r\n");
    EXPECT_EQ(outline_text(chain, Form::scr, "Rib"),
              "pline\r\n1.00000,0.00000\r\n0.12346,0.50000\r\n0.00000,-1.00000\r\n"
              "1.00000,0.00000\r\n\r\n");
    EXPECT_EQ(outline_text(chain, Form::sync, "Rib"),
              record("Fichero DAT(KMR)2002", "Rib") + record("SLATEWORKS", "") + record("1", "0") +
                  record("0.12346", "0.5") + record("0", "-1") + record("1", "0") +
                  record("Puntos Sincronismo", "") + record("", "") + record("1", "0"));
}

TEST(ImportTool, writes_a_file_to_its_chord_and_leaves_the_source) {
    const test::TemporaryFolder folder;
    const std::string source = folder.write("wing.dat", foil);
    std::filesystem::create_directory(folder.path() / "out");
    const Arguments arguments{.folder = folder.path("out"), .chord_mm = 200.0, .form = Form::plain};
    const Outcome outcome = import_file(source, arguments);
    EXPECT_TRUE(outcome.done) << outcome.fault;
    EXPECT_EQ(folder.read("out/wing.dat"),
              "WING\r\n200.00000 0.00000\r\n100.00000 20.00000\r\n0.00000 0.00000\r\n"
              "100.00000 -20.00000\r\n200.00000 0.00000\r\n");
    EXPECT_EQ(folder.read("wing.dat"), foil);
    EXPECT_NE(words_of(outcome).find("line 7: passed over: end"), std::string::npos);
    const Outcome again = import_file(source, arguments);
    EXPECT_FALSE(again.done);
    EXPECT_NE(again.fault.find("is there already"), std::string::npos);
}

TEST(ImportTool, a_source_is_never_written_over) {
    const test::TemporaryFolder folder;
    const Outcome outcome = import_file(folder.write("wing.dat", foil), {});
    EXPECT_FALSE(outcome.done);
    EXPECT_EQ(folder.read("wing.dat"), foil);
}

TEST(ImportTool, both_sides_of_a_program_become_two_files) {
    const test::TemporaryFolder folder;
    const std::string source = folder.write("cut.nc", "G21\nG0X0Y0U0V0\nG1X9U8\nY9V8\nX0Y0U0V0\n");
    const Outcome outcome = import_file(source, {});
    ASSERT_TRUE(outcome.done) << outcome.fault;
    EXPECT_EQ(outcome.written,
              (std::vector<std::string>{folder.path("cut-XY.dat"), folder.path("cut-UV.dat")}));
}

TEST(ImportTool, the_status_tells_whether_all_were_done) {
    const test::TemporaryFolder folder;
    const std::string good = folder.write("good.dat", foil);
    const std::string bad = folder.write("bad.dat", "nothing\n");
    std::string said;
    const auto say = [&](std::string_view text) {
        said += text;
    };
    std::size_t last = 0;
    const auto progress = [&](std::size_t behind) {
        last = behind;
    };
    EXPECT_EQ(import_files({.files = {good}, .check = true}, say, progress), 0);
    EXPECT_EQ(import_files({.files = {good, bad, folder.path("none")}, .json = true, .check = true},
                           say, progress),
              1);
    EXPECT_EQ(last, 3U);
    EXPECT_NE(said.find("\"fault\":\"nothing to cut found\""), std::string::npos);
    EXPECT_NE(said.find("\"fault\":\"no such file\""), std::string::npos);
}

TEST(ImportTool, json_holds_any_name) {
    Outcome outcome{.file = "a\"\\\n\xC3\xB1", .done = true, .fault = {}};
    outcome.imported.chains.push_back({.points = {{1, 2}, {3, 0.5}}, .name = "x"});
    const std::string text = json_of(outcome, true);
    EXPECT_TRUE(text.starts_with("{\"file\":\"a\\\"\\\\\\u000a\xC3\xB1\",\"ok\":true"));
    EXPECT_NE(text.find("\"at\":[[1,2],[3,0.5]]"), std::string::npos);
}

} // namespace
} // namespace velmora::import_tool
