#include "forms/compensa.h"

#include "commands/command_table.h"
#include "commands/handlers.h"
#include "document/session.h"
#include "fakes/recording_platform.h"
#include "support/outline.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace velmora {
namespace {

using test::Points;
using test::points_of;
using test::set_shape;
using Calls = std::vector<std::string>;

class CompensaTest : public ::testing::Test {
  protected:
    test::RecordingPlatform platform_{test::with_database};
};

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
