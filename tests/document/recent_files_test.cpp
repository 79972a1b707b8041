#include "document/recent_files.h"

#include "document/session.h"
#include "fakes/recording_platform.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace velmora {
namespace {

using test::RecordingPlatform;
using testing::ElementsAre;

struct RecentFilesTest : testing::Test {
    RecordingPlatform machine;

    void open_all(int count) {
        for (int i = 1; i <= count; ++i)
            UpdateFileMenu("C:\\alas\\f" + std::to_string(i) + ".dat");
    }
    std::string stored(int index) {
        return machine.settings.get("RecentFiles", "RecentFile" + std::to_string(index))
            .value_or("");
    }
    void store(int index, const std::string& path) {
        machine.settings.save("RecentFiles", "RecentFile" + std::to_string(index), path);
    }
    std::vector<std::string> shown() {
        std::vector<std::string> captions;
        for (const RecentEntry& entry : session.Velmora.mnuRecentFile)
            if (entry.visible)
                captions.push_back(entry.caption);
        return captions;
    }
};

TEST_F(RecentFilesTest, an_empty_store_hides_all) {
    session.Velmora.mnuRecentFile[3].visible = true;
    session.Velmora.mnuRecentFileSep_visible = true;
    GetRecentFiles();
    EXPECT_TRUE(shown().empty());
    EXPECT_FALSE(session.Velmora.mnuRecentFileSep_visible);
}

TEST_F(RecentFilesTest, an_empty_path_does_nothing) {
    UpdateFileMenu("");
    EXPECT_TRUE(machine.settings.values.empty());
}

TEST_F(RecentFilesTest, the_newest_stands_first_by_its_name_alone) {
    UpdateFileMenu("C:\\alas\\raiz.dat");
    UpdateFileMenu("/home/ñu/punta.dat");
    UpdateFileMenu("suelto.dat");
    EXPECT_THAT(shown(), ElementsAre("&1 suelto.dat", "&2 punta.dat", "&3 raiz.dat"));
    EXPECT_EQ(session.Velmora.mnuRecentFile[2].path, "/home/ñu/punta.dat");
    EXPECT_EQ(session.Velmora.mnuRecentFile[3].path, "C:\\alas\\raiz.dat");
    EXPECT_TRUE(session.Velmora.mnuRecentFileSep_visible);
    EXPECT_EQ(stored(1), "suelto.dat");
    EXPECT_EQ(stored(3), "C:\\alas\\raiz.dat");
}

TEST_F(RecentFilesTest, opening_the_third_moves_it_to_the_top) {
    open_all(5);
    UpdateFileMenu(session.Velmora.mnuRecentFile[3].path);
    EXPECT_THAT(shown(),
                ElementsAre("&1 f3.dat", "&2 f5.dat", "&3 f4.dat", "&4 f2.dat", "&5 f1.dat"));
}

TEST_F(RecentFilesTest, opening_the_first_again_changes_nothing) {
    open_all(3);
    const auto before = machine.settings.values;
    UpdateFileMenu("C:\\alas\\f3.dat");
    EXPECT_EQ(machine.settings.values, before);
}

TEST_F(RecentFilesTest, the_eleventh_drops_the_oldest) {
    open_all(11);
    EXPECT_EQ(shown().size(), 10U);
    EXPECT_EQ(stored(1), "C:\\alas\\f11.dat");
    EXPECT_EQ(stored(10), "C:\\alas\\f2.dat");
    EXPECT_EQ(stored(11), "");
}

TEST_F(RecentFilesTest, the_tenth_moves_to_the_top_too) {
    open_all(10);
    UpdateFileMenu("C:\\alas\\f1.dat");
    EXPECT_EQ(stored(1), "C:\\alas\\f1.dat");
    EXPECT_EQ(stored(10), "C:\\alas\\f2.dat");
    EXPECT_EQ(stored(11), "");
}

TEST_F(RecentFilesTest, another_spelling_of_a_path_is_another_file) {
    UpdateFileMenu("C:\\alas\\raiz.dat");
    UpdateFileMenu("C:\\ALAS\\raiz.dat");
    EXPECT_THAT(shown(), ElementsAre("&1 raiz.dat", "&2 raiz.dat"));
}

TEST_F(RecentFilesTest, the_list_stops_at_the_first_gap) {
    store(1, "a.dat");
    store(3, "c.dat");
    GetRecentFiles();
    EXPECT_THAT(shown(), ElementsAre("&1 a.dat"));
    EXPECT_TRUE(session.Velmora.mnuRecentFileSep_visible);
}

TEST_F(RecentFilesTest, a_path_that_left_the_store_behind_the_menu_comes_back_on_top) {
    open_all(2);
    store(1, "x.dat");
    store(2, "y.dat");
    UpdateFileMenu("C:\\alas\\f1.dat");
    EXPECT_EQ(stored(1), "C:\\alas\\f1.dat");
    EXPECT_EQ(stored(2), "x.dat");
    EXPECT_EQ(stored(3), "y.dat");
}

TEST_F(RecentFilesTest, what_another_window_of_the_program_put_in_stays) {
    open_all(2);
    store(3, "C:\\alas\\f1.dat");
    store(2, "C:\\alas\\f2.dat");
    store(1, "ajeno.dat");
    UpdateFileMenu("nuevo.dat");
    EXPECT_THAT(shown(), ElementsAre("&1 nuevo.dat", "&2 ajeno.dat", "&3 f2.dat", "&4 f1.dat"));
}

} // namespace
} // namespace velmora
