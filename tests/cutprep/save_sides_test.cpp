#include "cutprep/save_sides.h"

#include "cutprep/adjustment.h"
#include "formats/sample_files.h"
#include "support/watching.h"
#include "workbench.h"

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>

namespace velmora {
namespace {

using test::number_of;
using test::RecordingPlatform;
using test::sync_file;

struct SaveSidesTest : testing::Test, test::Workbench {
    std::string path_A = machine.path("raiz2.DAT");
    std::string path_B = machine.path("punta2.DAT");

    SaveSidesTest() {
        session.ajuste.Txt_File_A2 = path_A;
        session.ajuste.Txt_File_B2 = path_B;
        set_results({{0, 0}, {10, 0}, {10, 5}}, {{1, 1}, {2, 2}, {3, 3}});
    }
    static void set_results(const test::Points& A2, const test::Points& B2) {
        test::fill(session.PtosA2, A2);
        test::fill(session.PtosB2, B2);
    }
    std::string written_A() const { return RecordingPlatform::read(path_A); }
    std::string written_B() const { return RecordingPlatform::read(path_B); }
};

TEST_F(SaveSidesTest, both_sides_are_written_to_the_byte) {
    set_results({{0, 0, 1}, {10.5, -0.25}, {1E-05, 123456789.123456789}},
                {{1, 1}, {2, 2, 1}, {3, 3, 1}});
    Cmd_save_Click();
    EXPECT_EQ(written_A(),
              sync_file({{"0", "0"}, {"10.5", "-0.25"}, {"1E-05", "123456789.123457"}, {"0", "0"}},
                        {{"0", "0"}}, "corrpoltrap"));
    EXPECT_EQ(written_B(), sync_file({{"1", "1"}, {"2", "2"}, {"3", "3"}, {"1", "1"}},
                                     {{"2", "2"}, {"3", "3"}}, "corrpoltrap"));
    EXPECT_FALSE(session.files.is_open(1));
    EXPECT_TRUE(machine.dialogs.boxes.empty());
}

TEST_F(SaveSidesTest, consecutive_points_of_equal_text_are_written_once_per_side) {
    // The third differs from the second in the last bit alone, the fourth from the third in X.
    set_results({{1, 1}, {0.3, 2}, {0.1 + 0.2, 2}, {0.4, 2}, {1, 1}, {1, 1}},
                {{1, 1}, {1, 1}, {1, 1}, {1, 1}, {1, 1}, {2, 1}});
    Cmd_save_Click();
    EXPECT_EQ(written_A(),
              sync_file({{"1", "1"}, {"0.3", "2"}, {"0.4", "2"}, {"1", "1"}, {"1", "1"}}, {},
                        "corrpoltrap"));
    EXPECT_EQ(written_B(), sync_file({{"1", "1"}, {"2", "1"}, {"1", "1"}}, {}, "corrpoltrap"));
}

TEST_F(SaveSidesTest, a_first_point_of_minus_999_is_taken_for_a_repeat) {
    set_results({{-999, -999}, {-999, -998}, {-999, -999}}, {{-999, 1}, {-999, -999}, {0, 0}});
    Cmd_save_Click();
    EXPECT_EQ(written_A(),
              sync_file({{"-999", "-998"}, {"-999", "-999"}, {"-999", "-999"}}, {}, "corrpoltrap"));
    EXPECT_EQ(written_B(), sync_file({{"-999", "1"}, {"-999", "-999"}, {"0", "0"}, {"-999", "1"}},
                                     {}, "corrpoltrap"));
}

TEST_F(SaveSidesTest, all_points_count_as_sync_points_when_the_box_is_ticked_repeats_too) {
    set_results({{0, 0, 1}, {5, 5}, {5, 5}}, {{1, 1}, {2, 2}, {3, 3}});
    session.ajuste.ChkPtosCtrl = true;
    Cmd_save_Click();
    EXPECT_EQ(written_A(), sync_file({{"0", "0"}, {"5", "5"}, {"0", "0"}},
                                     {{"0", "0"}, {"5", "5"}, {"5", "5"}}, "corrpoltrap"));
}

TEST_F(SaveSidesTest, a_result_of_equal_runs_has_an_empty_sync_section) {
    set_sides({{0, 0, 1}, {4, 0}, {4, 4, 1}}, {{0, 1, 1}, {5, 1}, {5, 5, 1}});
    Cmd_Ajuste_Click();
    Cmd_save_Click();
    EXPECT_EQ(
        RecordingPlatform::read(machine.path("raiz2.DAT")),
        sync_file({{"0", "0"}, {"4", "0"}, {"4", "4"}, {"0", "0"}, {"0", "0"}}, {}, "corrpoltrap"));
}

TEST_F(SaveSidesTest, commas_of_the_machine_become_points_and_the_last_line_end_goes) {
    session.SepDecimal = ',';
    set_results({{0.5, 1.25, 1}}, {{1, 2, 1}});
    Cmd_save_Click();
    const std::string whole =
        sync_file({{"0.5", "1.25"}, {"0.5", "1.25"}}, {{"0.5", "1.25"}}, "corrpoltrap");
    EXPECT_EQ(written_A(), whole.substr(0, whole.size() - 2));
    EXPECT_EQ(written_B(), sync_file({{"1", "2"}, {"1", "2"}}, {{"1", "2"}}, "corrpoltrap"));
}

TEST_F(SaveSidesTest, earlier_files_go_to_the_recycle_bin_before_either_is_written) {
    machine.write("raiz2.DAT", std::string(5000, 'x'));
    machine.write("punta2.DAT", "y");
    Cmd_save_Click();
    EXPECT_EQ(machine.shell.recycled, (std::vector<std::string>{path_A, path_B}));
    EXPECT_EQ(written_A().size(), 8U * 44);
}

TEST_F(SaveSidesTest, neither_side_is_written_before_both_earlier_files_are_gone) {
    machine.write("raiz2.DAT", "x");
    machine.write("punta2.DAT", "y");
    std::vector<bool> side_A_stood;
    const test::WatchingShell shell([&](std::string_view) {
        side_A_stood.push_back(std::filesystem::exists(machine.folder / "raiz2.DAT"));
    });
    Cmd_save_Click();
    EXPECT_EQ(side_A_stood, (std::vector{true, false}));
}

TEST_F(SaveSidesTest, an_earlier_file_that_can_not_be_deleted_leaves_nothing_in_the_new_one) {
    machine.shell.recycle_fails = true;
    machine.write("raiz2.DAT", std::string(5000, 'x'));
    Cmd_save_Click();
    EXPECT_EQ(written_A().size(), 8U * 44);
}

TEST_F(SaveSidesTest, the_same_result_can_be_saved_again) {
    Cmd_save_Click();
    const std::string first = written_A();
    Cmd_save_Click();
    EXPECT_EQ(written_A(), first);
}

TEST_F(SaveSidesTest, the_exit_button_comes_back_with_the_pointer) {
    session.ajuste.Cmd_save_enabled = true;
    Cmd_save_Click();
    EXPECT_EQ(machine.windows.pointers, (std::vector<int>{11, 0}));
    EXPECT_TRUE(session.ajuste.cmd_exit_enabled);
    EXPECT_TRUE(session.ajuste.Cmd_save_enabled);
}

TEST_F(SaveSidesTest, a_fault_of_the_file_raises_and_leaves_hourglass_and_button) {
    session.ajuste.Txt_File_B2 = machine.path("no/such/folder2.DAT");
    EXPECT_EQ(number_of(Cmd_save_Click), error::path_not_found);
    EXPECT_EQ(session.Velmora.MousePointer, 11);
    EXPECT_FALSE(session.ajuste.cmd_exit_enabled);
    EXPECT_FALSE(written_A().empty());
}

} // namespace
} // namespace velmora
