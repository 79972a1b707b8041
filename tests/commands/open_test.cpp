#include "commands/handlers.h"

#include "document/session.h"
#include "fakes/recording_platform.h"
#include "fakes/watching.h"
#include "formats/sample_files.h"
#include "platform/dialogs.h"
#include "runtime/paths.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

using test::RecordingPlatform;
using test::sync_file;
using test::WatchingSettings;

std::string triangle_file() {
    return sync_file({{"0", "0"}, {"10.26", "0"}, {"10.26", "5"}, {"0", "0"}}, {{"0", "0"}});
}

void load_triangle(RecordingPlatform& platform) {
    platform.dialogs.paths = {platform.write("wing.dat", triangle_file())};
    mnu_openfile();
}

TEST(mnu_openfile, takes_the_file_in_and_refreshes) {
    RecordingPlatform platform{test::with_database};
    platform.settings.values[{"Values", "Def_Zoom"}] = "1500.5";
    session.Precision = 1;
    session.PtoSel = 9;
    session.ZoomFactor = 3;
    load_triangle(platform);
    EXPECT_EQ(session.PtoSel, 0);
    EXPECT_EQ(Forma.Pto[1].X, 10.3);
    EXPECT_EQ(session.TotalPtos, 3);
    EXPECT_EQ(session.winoptions.Txt_zoom, "1500.5");
    EXPECT_EQ(session.ZoomFactor, 1500.5);
    EXPECT_EQ(session.Velmora.pic_BackColor, session.cl_fondo);
    EXPECT_EQ(session.Velmora.lbl_xyfloat_ForeColor, session.cl_coords);
    EXPECT_EQ(session.Velmora.Lst_Coords.size(), 3U);
    EXPECT_EQ(platform.settings.get("RecentFiles", "RecentFile1"), platform.path("wing.dat"));
}

TEST(mnu_openfile, takes_the_default_of_the_zoom_alone) {
    RecordingPlatform platform{test::with_database};
    session.PutArc = 91;
    session.PutCircle = 92;
    session.Precision = 3;
    session.winoptions.TxtPutArc = "91";
    session.winoptions.TxtPutCircle = "92";
    session.winoptions.TxtPrecision = "3";
    load_triangle(platform);
    EXPECT_EQ(session.ZoomFactor, session.Def_Zoom);
    EXPECT_EQ(session.PutArc, 91);
    EXPECT_EQ(session.PutCircle, 92);
    EXPECT_EQ(session.Precision, 3);
    EXPECT_EQ(session.winoptions.TxtPutArc, "91");
    EXPECT_EQ(session.winoptions.TxtPutCircle, "92");
    EXPECT_EQ(session.winoptions.TxtPrecision, "3");
}

TEST(mnu_openfile, fits_the_shape_where_the_user_chose_so) {
    RecordingPlatform platform{test::with_database};
    session.FitOnOpen = True;
    load_triangle(platform);
    EXPECT_EQ(session.ZoomFactor, 72.12) << "(800 / 2 - 30) / 5.13";
    EXPECT_EQ(session.winoptions.Txt_zoom, "72.12");
    EXPECT_TRUE(session.Velmora.SSScroll_middle);
}

TEST(mnu_openfile, a_failed_load_leaves_the_selection_and_the_list) {
    RecordingPlatform platform{test::with_database};
    load_triangle(platform);
    session.PtoSel = 2;
    platform.dialogs.paths = {platform.write("bad.dat", sync_file({{"x", "0"}}, {}))};
    mnu_openfile();
    EXPECT_EQ(session.PtoSel, 2);
    EXPECT_EQ(session.Velmora.Lst_Coords.size(), 3U);
    EXPECT_EQ(platform.settings.get("RecentFiles", "RecentFile1"), platform.path("wing.dat"));
}

// The settings are looked at in the middle of the refresh, and the list of files is stored near its
// end: what stands at these moments tells the order.
void expect_the_order_of_the_refresh(RecordingPlatform& platform, void (*command)()) {
    session.Precision = 1;
    session.ZoomFactor = 3;
    bool read = false;
    bool stored = false;
    WatchingSettings settings;
    settings.at_get = [&] {
        EXPECT_EQ(Forma.Pto[1].X, 10.3) << "rounded before the settings are read";
        EXPECT_EQ(session.ZoomFactor, 3);
        EXPECT_EQ(session.TotalPtos, 1) << "the layout comes later";
        read = true;
    };
    settings.at_save = [&] {
        EXPECT_EQ(session.ZoomFactor, session.Def_Zoom);
        EXPECT_EQ(session.TotalPtos, 3);
        EXPECT_EQ(session.CanvasX0, 1000) << "laid out before it is drawn";
        EXPECT_EQ(platform.pic.operations.back(), "present");
        EXPECT_TRUE(session.Velmora.Lst_Coords.empty()) << "the list comes last";
        stored = true;
    };
    command();
    EXPECT_TRUE(read && stored);
    EXPECT_EQ(session.Velmora.Lst_Coords.size(), 3U);
}

std::string left_of_the_axis() {
    return sync_file({{"0", "0"}, {"10.26", "0"}, {"-10.26", "5"}, {"0", "0"}}, {{"0", "0"}});
}

TEST(mnu_openfile, keeps_the_order_of_its_steps) {
    RecordingPlatform platform{test::with_database};
    platform.dialogs.paths = {platform.write("wing.dat", left_of_the_axis())};
    session.PtoSel = 9;
    expect_the_order_of_the_refresh(platform, mnu_openfile);
}

TEST(mnu_openfile, a_setting_that_is_no_number_comes_after_the_rounding) {
    RecordingPlatform platform{test::with_database};
    platform.settings.values[{"Values", "Def_Zoom"}] = "mucho";
    platform.dialogs.paths = {platform.write("wing.dat", triangle_file())};
    session.Precision = 1;
    session.PtoSel = 9;
    EXPECT_EQ(test::number_of(mnu_openfile), 13);
    EXPECT_EQ(session.PtoSel, 0);
    EXPECT_EQ(Forma.Pto[1].X, 10.3);
    EXPECT_TRUE(session.Velmora.Lst_Coords.empty());
}

TEST(mnuRecentFile, keeps_the_order_of_its_steps) {
    RecordingPlatform platform{test::with_database};
    session.Velmora.mnuRecentFile[4].path = platform.write("wing.dat", left_of_the_axis());
    expect_the_order_of_the_refresh(platform, [] { mnuRecentFile(4); });
}

TEST(mnuRecentFile, opens_the_entry_with_all_defaults_and_moves_it_to_the_top) {
    RecordingPlatform platform{test::with_database};
    load_triangle(platform);
    platform.dialogs.paths = {platform.write("tip.dat", triangle_file())};
    mnu_openfile();
    session.PtoSel = 2;
    session.PutArc = session.PutCircle = 99;
    session.Precision = 1;
    session.ZoomFactor = 3;
    mnuRecentFile(2);
    EXPECT_EQ(session.FileName, platform.path("wing.dat"));
    EXPECT_EQ(session.PtoSel, 2);
    EXPECT_EQ(session.PutArc, session.Def_Arc);
    EXPECT_EQ(session.PutCircle, session.Def_ACircle);
    EXPECT_EQ(session.Precision, session.Def_Dec);
    EXPECT_EQ(session.ZoomFactor, session.Def_Zoom);
    EXPECT_EQ(session.winoptions.TxtPutArc, std::to_string(session.Def_Arc));
    EXPECT_EQ(platform.settings.get("RecentFiles", "RecentFile1"), platform.path("wing.dat"));
    EXPECT_EQ(platform.settings.get("RecentFiles", "RecentFile2"), platform.path("tip.dat"));
    EXPECT_TRUE(platform.dialogs.open_calls.size() == 2U);
}

TEST(mnuRecentFile, a_path_that_is_gone_is_reported_and_stays_in_the_list) {
    RecordingPlatform platform{test::with_database};
    load_triangle(platform);
    runtime::remove_file(platform.path("wing.dat"));
    session.LoadOk = False;
    mnuRecentFile(1);
    ASSERT_EQ(platform.dialogs.boxes.size(), 2U);
    EXPECT_NE(platform.dialogs.boxes[0].text.find("Error GetFileFormat  nº:53"), std::string::npos);
    EXPECT_EQ(session.Velmora.TxtDat_File, platform.path("wing.dat"));
    EXPECT_EQ(platform.settings.get("RecentFiles", "RecentFile1"), platform.path("wing.dat"));
}

TEST(open_named, fits_the_shape_where_the_user_chose_so) {
    RecordingPlatform platform{test::with_database};
    session.FitOnOpen = True;
    open_named(platform.write("wing.dat", triangle_file()));
    EXPECT_EQ(session.ZoomFactor, 72.12);
    EXPECT_EQ(session.winoptions.Txt_zoom, "72.12");
}

TEST(open_named, opens_as_a_recent_file_does) {
    RecordingPlatform platform{test::with_database};
    const std::string path = platform.write("wing.dat", triangle_file());
    open_named(path);
    EXPECT_EQ(session.TotalPtos, 3);
    EXPECT_EQ(session.Velmora.TxtDat_File, path);
    EXPECT_EQ(session.Velmora.Lst_Coords.size(), 3U);
    EXPECT_EQ(platform.settings.get("RecentFiles", "RecentFile1"), path);
}

} // namespace
} // namespace velmora
