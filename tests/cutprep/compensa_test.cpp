#include "cutprep/compensa.h"

#include "commands/command_table.h"
#include "commands/handlers.h"
#include "document/session.h"
#include "support/error_number.h"
#include "support/outline.h"
#include "support/recording_platform.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>

namespace velmora {
namespace {

using test::number_of;
using test::Points;
using test::points_of;
using test::set_shape;
using test::shape;
using Calls = std::vector<std::string>;

constexpr double kHuge = std::numeric_limits<double>::max();

class CompensaTest : public ::testing::Test {
  protected:
    static void expect_paralela(const Points& shape_points, double merma, const Points& expected) {
        set_shape(shape_points);
        compensate(merma);
        EXPECT_EQ(points_of(Forma.Paralela), expected);
        EXPECT_EQ(shape(), shape_points);
    }
    test::RecordingPlatform platform_;
};

TEST_F(CompensaTest, horizontal_chords_move_straight_down_and_up) {
    expect_paralela({{0, 0, 1, -1}, {4, 0}, {1, 0, 1}}, 2, {{0, -2, 1, -1}, {4, 2}, {1, 0, 1}});
}

TEST_F(CompensaTest, each_slope_and_direction) {
    // sine and cosine of the chord 3, 4 times 0.5
    expect_paralela({{0, 0}, {3, 4}, {9, 9}}, 0.5,
                    {{0x1.9999999999999p-2, -0x1.3333333333334p-2},
                     {0x1.a8f8c7fcfdf93p+1, 0x1.ced5766a026e9p+1},
                     {9, 9}});
}

TEST_F(CompensaTest, vertical_chords_repeat_the_last_computed_point) {
    expect_paralela({{0, 0}, {3, 4}, {7, 1}, {7, 2}, {7, 5}, {3, 5}, {1, 2}, {0, 9}}, 0.5,
                    {{0x1.9999999999999p-2, -0x1.3333333333334p-2},
                     {0x1.a666666666666p+1, 0x1.ccccccccccccdp+1},
                     {0x1.a666666666666p+1, 0x1.ccccccccccccdp+1},
                     {0x1.a666666666666p+1, 0x1.ccccccccccccdp+1},
                     {7, 5.5},
                     {0x1.4abfb01f4c464p+1, 0x1.51c01aa03be89p+2},
                     {0x1.0292ab8408957p-1, 0x1.090d0c28ffb18p+1},
                     {0, 9}});
}

TEST_F(CompensaTest, a_vertical_chord_at_the_start_gives_the_origin) {
    expect_paralela({{5, 1}, {5, 4}, {5, 6}}, 1, {{0, 0}, {0, 0}, {5, 6}});
}

TEST_F(CompensaTest, with_two_points_the_first_moves) {
    expect_paralela({{1, 1}, {2, 1}}, 0.25, {{1, 0.75}, {2, 1}});
}

TEST_F(CompensaTest, an_overflow_is_a_fault) {
    set_shape({{-kHuge, 0}, {kHuge, 1}});
    EXPECT_EQ(number_of([] { compensate(1); }), 6);
    set_shape({{1, 0}, {1, 1e294}}); // divided by 1E-15
    EXPECT_EQ(number_of([] { compensate(1); }), 6);
    set_shape({{0, 0}, {0, 1e10}, {1, 0}});
    EXPECT_EQ(number_of([] { compensate(1); }), 0);
}

TEST_F(CompensaTest, the_command_opens_the_window_and_repaints) {
    set_shape({{0, 0}, {1, 0}, {1, 1}});
    mnu_paralela();
    EXPECT_EQ(platform_.windows.calls, Calls{"show_modal Compensa"});
    EXPECT_EQ(std::ranges::count(platform_.pic.operations, "cls"), 1);
}

TEST_F(CompensaTest, the_command_needs_a_shape) {
    mnu_paralela();
    ASSERT_EQ(platform_.dialogs.boxes.size(), 1U);
    EXPECT_EQ(platform_.dialogs.boxes[0].text, "No hay ninguna forma cargada!");
    EXPECT_TRUE(platform_.windows.calls.empty());
    EXPECT_TRUE(platform_.pic.operations.empty());
}

TEST_F(CompensaTest, its_menu_entry_stays_hidden) {
    ASSERT_NE(find_menu_entry("mnu_paralela"), nullptr);
    EXPECT_FALSE(find_menu_entry("mnu_paralela")->visible);
}

TEST_F(CompensaTest, ok_is_enabled_while_the_value_is_not_0) {
    session.Compensa.Txt_merma = "old";
    session.Compensa.cmd_ok_enabled = true;
    Compensa_Load();
    EXPECT_EQ(session.Compensa.Txt_merma, "");
    EXPECT_FALSE(session.Compensa.cmd_ok_enabled);
    const std::pair<const char*, bool> cases[] = {{"1", true},  {"0", false}, {"0.0", false},
                                                  {".5", true}, {"x", false}, {"-1", true}};
    for (const auto& [text, enabled] : cases) {
        session.Compensa.Txt_merma = text;
        Txt_merma_Change();
        EXPECT_EQ(session.Compensa.cmd_ok_enabled, enabled) << text;
    }
}

TEST_F(CompensaTest, keys) {
    Compensa_Load();
    session.Compensa.Txt_merma = "12";
    Txt_merma_Change();
    for (const int key : {int{'0'}, int{'9'}, 8, 13, int{'.'}})
        EXPECT_EQ(Txt_merma_KeyPress(key), key);
    for (const int key : {int{'-'}, int{','}, int{'e'}}) {
        session.Compensa.Txt_merma = "12";
        EXPECT_EQ(Txt_merma_KeyPress(key), 0);
        EXPECT_EQ(session.Compensa.Txt_merma, "0");
        EXPECT_FALSE(session.Compensa.cmd_ok_enabled);
    }
    EXPECT_EQ(platform_.windows.calls, Calls(3, "focus Compensa.Txt_merma"));
    ASSERT_EQ(platform_.dialogs.boxes.size(), 3U);
    EXPECT_EQ(platform_.dialogs.boxes[0].text, "Sólo se permiten números!");
}

TEST_F(CompensaTest, ok_computes_and_closes_cancel_leaves_the_earlier_outline) {
    set_shape({{0, 0}, {4, 0}});
    session.Compensa.Txt_merma = "0.5mm";
    Compensa_cmd_ok_Click();
    const Points first = {{0, -0.5}, {4, 0}};
    EXPECT_EQ(points_of(Forma.Paralela), first);
    set_shape({{0, 0}, {0, 4}, {4, 4}});
    session.Compensa.Txt_merma = "1";
    Compensa_cmd_cancel_Click();
    EXPECT_EQ(points_of(Forma.Paralela), first);
    EXPECT_EQ(platform_.windows.calls, (Calls{"unload Compensa", "unload Compensa"}));
}

} // namespace
} // namespace velmora
