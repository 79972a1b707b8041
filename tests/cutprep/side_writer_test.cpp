#include "cutprep/side_writer.h"

#include "formats/sample_files.h"
#include "workbench.h"

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>

namespace velmora {
namespace {

using test::number_of;
using test::RecordingPlatform;
using test::sync_file;

struct SideWriterTest : testing::Test, test::Workbench {
    std::string path_A = machine.path("raiz2.DAT");
    std::string path_B = machine.path("punta2.DAT");

    SideWriterTest() {
        session.ajuste.Txt_File_A2 = path_A;
        session.ajuste.Txt_File_B2 = path_B;
        set_results({{0, 0}, {10, 0}, {10, 5}}, {{1, 1}, {2, 2}, {3, 3}});
    }
    static void set_results(const test::Points& A2, const test::Points& B2) {
        test::fill(session.PtosA2, A2);
        test::fill(session.PtosB2, B2);
    }
    static void save(bool all_sync = false) {
        write_results({session.PtosA2, session.ajuste.Txt_File_A2},
                      {session.PtosB2, session.ajuste.Txt_File_B2}, all_sync);
    }
    std::string written_A() const { return RecordingPlatform::read(path_A); }
    std::string written_B() const { return RecordingPlatform::read(path_B); }
};

TEST_F(SideWriterTest, both_sides_are_written_to_the_byte) {
    set_results({{0, 0, 1}, {10.5, -0.25}, {1E-05, 123456789.123456789}},
                {{1, 1}, {2, 2, 1}, {3, 3, 1}});
    save();
    EXPECT_EQ(written_A(),
              sync_file({{"0", "0"}, {"10.5", "-0.25"}, {"1E-05", "123456789.123457"}, {"0", "0"}},
                        {{"0", "0"}}, "corrpoltrap"));
    EXPECT_EQ(written_B(), sync_file({{"1", "1"}, {"2", "2"}, {"3", "3"}, {"1", "1"}},
                                     {{"2", "2"}, {"3", "3"}}, "corrpoltrap"));
    EXPECT_FALSE(session.files.is_open(1));
    EXPECT_TRUE(machine.dialogs.boxes.empty());
}

TEST_F(SideWriterTest, consecutive_points_of_equal_text_are_written_once_per_side) {
    // The third differs from the second in the last bit alone, the fourth from the third in X.
    set_results({{1, 1}, {0.3, 2}, {0.1 + 0.2, 2}, {0.4, 2}, {1, 1}, {1, 1}},
                {{1, 1}, {1, 1}, {1, 1}, {1, 1}, {1, 1}, {2, 1}});
    save();
    EXPECT_EQ(written_A(),
              sync_file({{"1", "1"}, {"0.3", "2"}, {"0.4", "2"}, {"1", "1"}, {"1", "1"}}, {},
                        "corrpoltrap"));
    EXPECT_EQ(written_B(), sync_file({{"1", "1"}, {"2", "1"}, {"1", "1"}}, {}, "corrpoltrap"));
}

TEST_F(SideWriterTest, a_first_point_of_minus_999_is_taken_for_a_repeat) {
    set_results({{-999, -999}, {-999, -998}, {-999, -999}}, {{-999, 1}, {-999, -999}, {0, 0}});
    save();
    EXPECT_EQ(written_A(),
              sync_file({{"-999", "-998"}, {"-999", "-999"}, {"-999", "-999"}}, {}, "corrpoltrap"));
    EXPECT_EQ(written_B(), sync_file({{"-999", "1"}, {"-999", "-999"}, {"0", "0"}, {"-999", "1"}},
                                     {}, "corrpoltrap"));
}

TEST_F(SideWriterTest, all_points_count_as_sync_points_when_asked_for_repeats_too) {
    set_results({{0, 0, 1}, {5, 5}, {5, 5}}, {{1, 1}, {2, 2}, {3, 3}});
    save(true);
    EXPECT_EQ(written_A(), sync_file({{"0", "0"}, {"5", "5"}, {"0", "0"}},
                                     {{"0", "0"}, {"5", "5"}, {"5", "5"}}, "corrpoltrap"));
}

TEST_F(SideWriterTest, a_result_of_equal_runs_has_an_empty_sync_section) {
    set_sides({{0, 0, 1}, {4, 0}, {4, 4, 1}}, {{0, 1, 1}, {5, 1}, {5, 5, 1}});
    adjust();
    save();
    EXPECT_EQ(
        RecordingPlatform::read(machine.path("raiz2.DAT")),
        sync_file({{"0", "0"}, {"4", "0"}, {"4", "4"}, {"0", "0"}, {"0", "0"}}, {}, "corrpoltrap"));
}

TEST_F(SideWriterTest, commas_of_the_machine_become_points_and_the_last_line_end_goes) {
    session.SepDecimal = ',';
    set_results({{0.5, 1.25, 1}}, {{1, 2, 1}});
    save();
    const std::string whole =
        sync_file({{"0.5", "1.25"}, {"0.5", "1.25"}}, {{"0.5", "1.25"}}, "corrpoltrap");
    EXPECT_EQ(written_A(), whole.substr(0, whole.size() - 2));
    EXPECT_EQ(written_B(), sync_file({{"1", "2"}, {"1", "2"}}, {{"1", "2"}}, "corrpoltrap"));
}

TEST_F(SideWriterTest, an_earlier_file_that_can_not_be_deleted_leaves_nothing_in_the_new_one) {
    machine.shell.recycle_fails = true;
    machine.write("raiz2.DAT", std::string(5000, 'x'));
    save();
    EXPECT_EQ(written_A().size(), 8U * 44);
}

TEST_F(SideWriterTest, the_same_result_can_be_saved_again) {
    save();
    const std::string first = written_A();
    save();
    EXPECT_EQ(written_A(), first);
}

TEST_F(SideWriterTest, an_earlier_file_goes_to_the_recycle_bin) {
    machine.write("raiz2.DAT", "x");
    save();
    EXPECT_EQ(machine.shell.recycled, std::vector<std::string>{path_A});
}

TEST_F(SideWriterTest, both_sides_under_one_name_leave_the_second) {
    machine.write("raiz2.DAT", "x");
    session.ajuste.Txt_File_B2 = path_A;
    save();
    EXPECT_EQ(written_A().substr(88, 4), "1   ");
    EXPECT_EQ(machine.shell.recycled, std::vector<std::string>{path_A});
}

TEST_F(SideWriterTest, a_second_side_that_fails_leaves_its_earlier_file_and_a_whole_first_one) {
    save();
    const std::string whole = written_A();
    machine.write("raiz2.DAT", "old");
    std::filesystem::create_directory(machine.path("carpeta"));
    for (const std::string& refused :
         {machine.path("no/such/folder2.DAT"), machine.path("carpeta")}) {
        session.ajuste.Txt_File_B2 = refused;
        EXPECT_NE(number_of([] { save(); }), 0);
        EXPECT_EQ(written_A(), whole);
    }
}

TEST_F(SideWriterTest, a_folder_that_is_not_there_raises_76) {
    session.ajuste.Txt_File_B2 = machine.path("no/such/folder2.DAT");
    EXPECT_EQ(number_of([] { save(); }), error::path_not_found);
}

} // namespace
} // namespace velmora
