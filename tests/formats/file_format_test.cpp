#include "formats/file_format.h"

#include "document/session.h"
#include "fakes/recording_platform.h"
#include "formats/sample_files.h"
#include "runtime/error.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

using test::RecordingPlatform;

const std::string k42(42, 'x');
const std::string k41(41, 'x');
const std::string k43(43, 'x');

TEST(GetFileFormat, tells_the_dialect_by_the_first_three_lines) {
    struct Case {
        const char* why;
        std::string text;
        FileFormat format;
    };
    const std::string slw42 = "SLW - " + std::string(36, 'x');
    const std::vector<Case> cases = {
        {"a written file", test::sync_file({{"0", "0"}}, {}), FileFormat::SLWSINC},
        {"three lines of 42", k42 + "\n" + k42 + "\n" + k42, FileFormat::SLWSINC},
        {"42 stands before SLW", slw42 + "\n" + k42 + "\n" + k42 + "\n", FileFormat::SLWSINC},
        {"three lines of 41", k41 + "\n" + k41 + "\n" + k41, FileFormat::NOSLW},
        {"three lines of 43", k43 + "\n" + k43 + "\n" + k43, FileFormat::NOSLW},
        {"line 2 is shorter", k42 + "\n" + k41 + "\n" + k42, FileFormat::NOSLW},
        {"line 1 is shorter", k41 + "\n" + k42 + "\n" + k42, FileFormat::NOSLW},
        {"42 letters beyond ASCII", std::string(42, '\xF1') + "\n" + k42 + "\n" + k42,
         FileFormat::SLWSINC},
        {"SLW", "SLW - perfil\nx\ny\n", FileFormat::SLWS},
        {"SLW stands before SLATEWORKS", "SLW - perfil\nSLATEWORKS\ny\n", FileFormat::SLWS},
        {"SLW not at the start", " SLW - perfil\nx\ny\n", FileFormat::NOSLW},
        {"SLW in small letters", "slw - perfil\nx\ny\n", FileFormat::NOSLW},
        {"SLATEWORKS", "x\nSLATEWORKS 2002\ny\n", FileFormat::SLWSINC},
        {"SLATEWORKS before KORDLINE", "KORDLINE\nSLATEWORKS\ny\n", FileFormat::SLWSINC},
        {"SLATEWORKS not at the start", "x\n SLATEWORKS\ny\n", FileFormat::NOSLW},
        {"SLATEWORKS in line 1", "SLATEWORKS\nx\ny\n", FileFormat::NOSLW},
        {"KORDLINE", "de KORDLINE 3\nx\ny\n", FileFormat::SLWMD},
        {"MERIDOL", "MERIDOL\nx\ny\n", FileFormat::SLWMD},
        {"MERIDOL before Upper X", "MERIDOL\nx\n  Upper X\n", FileFormat::SLWMD},
        {"Meridol in its own case", "Meridol\nx\ny\n", FileFormat::NOSLW},
        {"Upper X", "perfil\n\n Upper X  Upper Y\n", FileFormat::PROFILI},
        {"Upper X in line 2", "perfil\nUpper X\ny\n", FileFormat::NOSLW},
        {"anything else", "perfil\n0 0\n1 1", FileFormat::NOSLW},
        {"blank lines", "\n\n\n", FileFormat::NOSLW},
        {"CR LF", "x\r\nSLATEWORKS\r\ny\r\n", FileFormat::SLWSINC},
        {"CR", "x\rSLATEWORKS\ry\r", FileFormat::SLWSINC},
    };
    RecordingPlatform platform;
    for (const Case& c : cases) {
        EXPECT_EQ(GetFileFormat(platform.write("wing.dat", c.text)), c.format) << c.why;
        EXPECT_FALSE(session.files.is_open(1)) << c.why;
    }
    EXPECT_TRUE(platform.dialogs.boxes.empty());
}

TEST(GetFileFormat, fewer_than_three_lines_give_one_box) {
    for (const std::string text : {"", "a", "a\r\n", "a\r\nb", "a\nb\n",
                                   "a\nb\n\x1A"
                                   "c\n"}) {
        RecordingPlatform platform{test::with_database};
        const std::string path = platform.write("wing.dat", text);
        EXPECT_EQ(GetFileFormat(path), FileFormat::undecided);
        ASSERT_EQ(platform.dialogs.boxes.size(), 1U);
        EXPECT_EQ(platform.dialogs.boxes[0],
                  (test::ShownBox{"El fichero : " + path +
                                      " debe tener más de dos lineas para sea un formato DAT "
                                      "aceptable! Error GetFileFormat  nº:62 Desc: " +
                                      error_description(62, 'E'),
                                  0, "Velmora"}));
        EXPECT_FALSE(session.files.is_open(1));
    }
}

TEST(GetFileFormat, a_missing_file_and_a_folder_come_to_the_same_box) {
    RecordingPlatform platform{test::with_database};
    EXPECT_EQ(GetFileFormat(platform.path("none.dat")), FileFormat::undecided);
    EXPECT_NE(platform.dialogs.boxes.at(0).text.find("nº:53 Desc: "), std::string::npos);
    EXPECT_EQ(GetFileFormat(platform.folder.string()), FileFormat::undecided);
    EXPECT_NE(platform.dialogs.boxes.at(1).text.find("nº:75 Desc: "), std::string::npos);
}

TEST(GetFileFormat, a_file_1_left_open_is_error_55_once) {
    RecordingPlatform platform{test::with_database};
    const std::string path = platform.write("wing.dat", "SLW - a\nb\nc\n");
    session.files.open_input(1, path);
    EXPECT_EQ(GetFileFormat(path), FileFormat::undecided);
    EXPECT_NE(platform.dialogs.boxes.at(0).text.find("nº:55 Desc: "), std::string::npos);
    EXPECT_EQ(GetFileFormat(path), FileFormat::SLWS);
}

TEST(GetFileFormat, the_box_can_name_the_file_in_another_way) {
    RecordingPlatform platform{test::with_database};
    const std::string path = platform.write("wing.dat", "a");
    EXPECT_EQ(GetFileFormat(path, "WING.DAT"), FileFormat::undecided);
    EXPECT_TRUE(platform.dialogs.boxes.at(0).text.starts_with("El fichero : WING.DAT debe tener"));
}

} // namespace
} // namespace velmora
