#include "commands/handlers.h"

#include "document/session.h"
#include "fakes/recording_platform.h"
#include "formats/sample_files.h"
#include "forms/new_dat.h"
#include "platform/dialogs.h"
#include "runtime/paths.h"
#include "support/outline.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

using test::RecordingPlatform;
using test::sync_file;

std::string triangle_file() {
    return sync_file({{"0", "0"}, {"10.26", "0"}, {"10.26", "5"}, {"0", "0"}}, {{"0", "0"}});
}

void load_triangle(RecordingPlatform& platform) {
    platform.dialogs.paths = {platform.write("wing.dat", triangle_file())};
    mnu_openfile();
}

TEST(mnu_savefile, writes_under_the_name_that_stands_in_the_box) {
    RecordingPlatform platform{test::with_database};
    load_triangle(platform);
    mnu_savefile();
    EXPECT_TRUE(platform.dialogs.save_calls.empty());
    EXPECT_EQ(RecordingPlatform::read(platform.path("wing.dat")), triangle_file());
}

TEST(mnu_savefile, an_empty_box_starts_the_dialog_even_when_FileName_stands) {
    RecordingPlatform platform{test::with_database};
    load_triangle(platform);
    session.Velmora.TxtDat_File = "  ";
    platform.dialogs.paths = {platform.path("nuevo.dat")};
    mnu_savefile();
    EXPECT_EQ(platform.dialogs.save_calls.size(), 1U);
    EXPECT_TRUE(runtime::file_exists(platform.path("nuevo.dat")));
}

TEST(mnu_savefile, a_cancelled_dialog_and_an_empty_box_write_nothing) {
    RecordingPlatform platform{test::with_database};
    load_triangle(platform);
    session.Velmora.TxtDat_File.clear();
    mnu_savefile();
    EXPECT_EQ(platform.dialogs.save_calls.size(), 1U);
    EXPECT_TRUE(platform.dialogs.boxes.empty());
    EXPECT_TRUE(platform.shell.recycled.empty());
}

TEST(mnu_savefileas, a_cancelled_dialog_goes_on_to_the_file_that_stands) {
    RecordingPlatform platform{test::with_database};
    load_triangle(platform);
    Forma.Pto[1].Y = 1;
    mnu_savefileas();
    EXPECT_EQ(platform.dialogs.save_calls.size(), 1U);
    EXPECT_NE(RecordingPlatform::read(platform.path("wing.dat")), triangle_file());
}

TEST(mnu_savefileas, cancel_at_the_question_writes_to_the_name_in_the_box) {
    RecordingPlatform platform{test::with_database};
    load_triangle(platform);
    const std::string other = platform.write("otro.dat", "x");
    platform.dialogs.paths = {other};
    platform.dialogs.answers = {answer::cancel};
    mnu_savefileas();
    EXPECT_EQ(RecordingPlatform::read(other), "x");
    EXPECT_EQ(session.FileName, platform.path("wing.dat"));
}

TEST(Saving, without_a_shape_shows_message_37_once_and_touches_no_file) {
    for (void (*const command)() : {mnu_savefile, mnu_savefileas}) {
        for (const std::string name : {"", "wing.dat"}) {
            RecordingPlatform platform{test::with_database};
            const std::string path = platform.write("wing.dat", "x");
            session.FileName = path;
            session.Velmora.TxtDat_File = name.empty() ? "" : path;
            command();
            ASSERT_EQ(platform.dialogs.boxes.size(), 1U);
            EXPECT_EQ(platform.dialogs.boxes[0].text, "No hay ninguna forma cargada!");
            EXPECT_TRUE(platform.dialogs.save_calls.empty());
            EXPECT_EQ(RecordingPlatform::read(path), "x");
        }
    }
}

// It is drawn with whatever shape comes, until the next compensation.
TEST(CompensatedOutline, outlives_its_shape) {
    RecordingPlatform platform{test::with_database};
    const test::Points outline = {{1, 2}, {3, 4}, {5, 6}};
    test::fill(Forma.Paralela, outline);
    load_triangle(platform);
    EXPECT_EQ(test::points_of(Forma.Paralela), outline);
    mnu_mirrorh();
    mnu_closefile();
    EXPECT_EQ(test::points_of(Forma.Paralela), outline);
    platform.windows.on_show_modal = [](std::string_view) {
        New_Dat_Load();
        New_Dat_Picture1_Click(0);
        New_Dat_cmd_ok_Click();
    };
    mnu_newfile();
    EXPECT_EQ(test::points_of(Forma.Paralela), outline);
}

TEST(mnu_closefile, resets_the_document_and_keeps_the_file_name) {
    RecordingPlatform platform{test::with_database};
    load_triangle(platform);
    session.PtoSel = 2;
    session.TotalSinc = 1;
    session.NLines = session.NSplines = session.NCircles = session.NArcs = 4;
    session.NLWPolylines = session.PtosSuprimidos = session.TotalObjs = 4;
    WinInfo& box = session.wininfo;
    const std::vector<std::string*> boxes = {
        &box.TxtTotalPtos, &box.TxtPtosSupr, &box.TxtNlines,       &box.TxtNSplines,
        &box.TxtNCircles,  &box.TxtNArcs,    &box.TxtNLWPolylines, &box.TxtTotalCtrlPtos,
        &box.TxtProcesed,  &box.TxtOrigX,    &box.TxtOrigY};
    for (std::string* text : boxes)
        *text = std::to_string(4);
    const auto fill = session.Velmora.Lst_Coords_fill;
    platform.pic.operations.clear();
    mnu_closefile();
    EXPECT_EQ(Forma.Pto.upper(), 0);
    EXPECT_EQ(Forma.Pto[0], Pto{});
    EXPECT_EQ(session.Velmora.TxtDat_File, "");
    EXPECT_EQ(session.Velmora.TxtDescDat, "");
    EXPECT_TRUE(session.Velmora.Lst_Coords.empty());
    EXPECT_GT(session.Velmora.Lst_Coords_fill, fill);
    for (const std::string* text : boxes)
        EXPECT_EQ(*text, "0");
    for (const std::int32_t count :
         {session.TotalPtos, session.PtosSuprimidos, session.NLines, session.NSplines,
          session.NCircles, session.NArcs, session.NLWPolylines})
        EXPECT_EQ(count, 0);
    EXPECT_EQ(session.OrigX, 0);
    EXPECT_FALSE(platform.pic.operations.empty());
    EXPECT_EQ(session.FileName, platform.path("wing.dat"));
    EXPECT_EQ(session.PtoSel, 2);
    EXPECT_EQ(session.TotalSinc, 1);
    EXPECT_EQ(session.TotalObjs, 4);
}

TEST(mnu_closefile, the_next_save_as_offers_the_old_name_without_its_extension) {
    RecordingPlatform platform{test::with_database};
    load_triangle(platform);
    mnu_closefile();
    Forma.Pto.redim(1);
    mnu_savefileas();
    const std::string path = platform.path("wing.dat");
    EXPECT_EQ(platform.dialogs.save_calls.at(0).name, path.substr(0, path.size() - 4));
    EXPECT_TRUE(platform.shell.recycled.empty());
}

} // namespace
} // namespace velmora
