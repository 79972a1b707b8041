#include "questions/questions.h"

#include "document/session.h"
#include "script/fault.h"
#include "script/words.h"
#include "scripted/cad_lines.h"
#include "unit/recorded.h"

#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace velmora::driver {
namespace {

using testing::ElementsAre;
using Words = std::vector<std::string>;

struct QuestionsTest : testing::Test, Recorded {
    QuestionsTest() { reset_session(); }
    ~QuestionsTest() override { reset_session(); }
};

TEST_F(QuestionsTest, points_of_the_outline_and_of_a_named_array) {
    Forma.Pto.redim(1);
    Forma.Pto[1] = {0.1, -2, 1, -1};
    session.PtosA.redim(0);
    show_points(transcript, Words{});
    show_points(transcript, Words{"PtosA"});
    show_points(transcript, Words{"Forma.Paralela"});
    EXPECT_THAT(lines, ElementsAre("points Forma.Pto 2", "0 0 0 0 0", "1 0.1 -2 1 -1",
                                   "points PtosA 1", "0 0 0 0 0", "points Forma.Paralela none"));
    EXPECT_THROW(show_points(transcript, Words{"Forma"}), ScriptFault);
    EXPECT_THROW(show_points(transcript, Words{"PtosA", "PtosB"}), ScriptFault);
}

TEST_F(QuestionsTest, entities_with_their_points) {
    show_objects(transcript);
    session.ObjsCad.redim(1);
    ObjCad& arc = session.ObjsCad[1];
    arc.Tipo = TipoCad::AcDbArc;
    arc.NPtos = 1;
    arc.Ptos.redim(1);
    arc.Ptos[1] = {0.5, -1};
    arc.Usado = -1;
    arc.Id = 7;
    arc.Orden = 3;
    show_objects(transcript);
    EXPECT_THAT(lines, ElementsAre("0 \"\" 0 0 0 0", "0 \"\" 0 0 0 0", "1 AcDbArc 7 3 -1 1",
                                   "0 0 0 0 0", "1 0.5 -1 0 0"));
}

TEST_F(QuestionsTest, values_of_each_kind) {
    session.FileName = "/tmp/x/work/mi ala.dat";
    session.ZoomFactor = 0.5;
    session.PtoSel = -1;
    session.LoadOk = True;
    session.cl_fondo = 0x80000000;
    show_values(transcript, places,
                Words{"FileName", "ZoomFactor", "PtoSel", "LoadOk", "cl_fondo", "SepDecimal",
                      "LastDir", "Ver", "SubVer", "PI"});
    EXPECT_THAT(lines, ElementsAre("FileName = \"$WORK/mi ala.dat\"", "ZoomFactor = 0.5",
                                   "PtoSel = -1", "LoadOk = -1", "cl_fondo = -2147483648",
                                   "SepDecimal = .", "LastDir = \"\"", "Ver = 1.0", "SubVer = 1011",
                                   "PI = 3.14159265358979"));
    EXPECT_THROW(show_values(transcript, places, Words{"Nothing"}), ScriptFault);
    EXPECT_THROW(show_values(transcript, places, Words{}), ScriptFault);
}

TEST_F(QuestionsTest, settings_in_order) {
    ScriptedSettings settings;
    settings.save("Values", "sound", "1");
    settings.save("RecentFiles", "RecentFile1", "/tmp/x/work/a.dat");
    settings.save("Values", "Idioma", "E");
    show_settings(transcript, places, settings);
    EXPECT_THAT(lines, ElementsAre("RecentFiles RecentFile1 $WORK/a.dat", "Values Idioma E",
                                   "Values sound 1"));
}

TEST_F(QuestionsTest, a_drawing_and_what_was_called) {
    CadState cad;
    show_cad(transcript, places, cad);
    for (const char* line :
         {"document a.dwg", "line 0 0 1 0.5", "polyline closed 0 0 1 1", "other AcDbText"})
        cad_line(cad, split_words(line));
    cad.application->active->model_space[0]->color = 2;
    cad.log = {"Documents.Add /tmp/x/program/acad.dwt", "ZoomExtents", "Documents.Add /a b"};
    cad.application->window_state = 3;
    show_cad(transcript, places, cad);
    EXPECT_THAT(lines,
                ElementsAre("documents 0", "window-state 1", "0 AcDbLine 2 0 0 1 0.5",
                            "1 AcDbPolyline 256 closed 0 0 1 1", "2 AcDbText 256", "documents 1",
                            "window-state 3", "Documents.Add $PROGRAM/acad.dwt", "ZoomExtents",
                            "Documents.Add \"/a b\""));
}

struct FileQuestionsTest : QuestionsTest {
    std::filesystem::path folder =
        std::filesystem::temp_directory_path() /
        ("velmora-questions-" + std::to_string(reinterpret_cast<std::uintptr_t>(this)));
    Places work{folder.string(), "/tmp/x/program"};

    FileQuestionsTest() { std::filesystem::create_directories(folder); }
    ~FileQuestionsTest() override { std::filesystem::remove_all(folder); }
    void write(const char* name, std::string_view bytes) const {
        std::ofstream(folder / name, std::ios::binary) << bytes;
    }
};

TEST_F(FileQuestionsTest, lines_of_a_file_with_their_ends) {
    write("a.dat", "pline\r\n0.5,\t\"\xD1\"\n\rlast");
    show_file(transcript, work, "a.dat");
    EXPECT_THAT(lines, ElementsAre("file a.dat 21", R"("pline\r\n")", R"("0.5,\t\"\xD1\"\n")",
                                   R"("\rlast")"));
}

TEST_F(FileQuestionsTest, an_empty_and_a_missing_file) {
    write("empty", "");
    show_file(transcript, work, "empty");
    show_file(transcript, work, "missing");
    show_file(transcript, work, ".");
    EXPECT_THAT(lines, ElementsAre("file empty 0", "file missing none", "file . none"));
}

TEST_F(FileQuestionsTest, names_of_a_folder_in_order) {
    write("b.dat", "");
    write("a c.dat", "");
    std::filesystem::create_directory(folder / "aa");
    show_files(transcript, work, ".");
    show_files(transcript, work, "nowhere");
    EXPECT_THAT(lines, ElementsAre("files .", "\"a c.dat\"", "aa", "b.dat", "files nowhere none"));
}

} // namespace
} // namespace velmora::driver
