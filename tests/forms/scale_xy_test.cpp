#include "forms/scale_xy.h"

#include "document/session.h"
#include "fakes/recording_platform.h"
#include "support/outline.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

using test::Points;
using test::RecordingPlatform;
using test::set_shape;
using test::shape;

class ScaleXyWindowTest : public ::testing::Test {
  protected:
    ScaleXyWindowTest() : window_(session.Scale_xy) {
        set_shape({{2, 1}, {0, 4}, {-1, 0}});
        session.Precision = 6;
        session.Longitud = 3;
        session.Altura = 4.5;
    }
    std::string& text(ScaleBox box) {
        switch (box) {
        case ScaleBox::fixed_x:
            return window_.txt_fixed_x;
        case ScaleBox::fixed_y:
            return window_.txt_fixed_y;
        case ScaleBox::percent_x:
            return window_.txt_percent_x;
        default:
            return window_.txt_percent_y;
        }
    }
    void type(ScaleBox box, const std::string& typed) {
        text(box) = typed;
        Scale_xy_Change(box);
    }
    RecordingPlatform platform_{test::with_database};
    ScaleXyWindow& window_;
};

TEST_F(ScaleXyWindowTest, load_fills_the_boxes_with_fixed_chosen) {
    window_.Opt_fixed = false;
    window_.txt_percent_x = std::string("7");
    Scale_xy_Load();
    EXPECT_EQ(window_.txt_fixed_x, "3");
    EXPECT_EQ(window_.txt_fixed_y, "4.5");
    EXPECT_EQ(window_.txt_percent_x, "100");
    EXPECT_EQ(window_.txt_percent_y, "100");
    EXPECT_TRUE(window_.Opt_fixed);
    EXPECT_TRUE(window_.frm_fixed_enabled);
    EXPECT_FALSE(window_.frm_percent_enabled);
    EXPECT_TRUE(window_.cmd_ok_enabled);
}

// The last filling is that of a percent box, so its pair decides even where a size is 0.
TEST_F(ScaleXyWindowTest, load_with_no_size_leaves_ok_enabled) {
    session.Longitud = 0;
    Scale_xy_Load();
    EXPECT_EQ(window_.txt_fixed_x, "0");
    EXPECT_TRUE(window_.cmd_ok_enabled);
    Opt_fixed_Click();
    EXPECT_FALSE(window_.cmd_ok_enabled);
}

TEST_F(ScaleXyWindowTest, the_options_swap_the_frames_and_test_their_pair) {
    Scale_xy_Load();
    window_.txt_percent_y = std::string("0");
    Opt_percent_Click();
    EXPECT_FALSE(window_.Opt_fixed);
    EXPECT_FALSE(window_.frm_fixed_enabled);
    EXPECT_TRUE(window_.frm_percent_enabled);
    EXPECT_FALSE(window_.cmd_ok_enabled);
    Opt_fixed_Click();
    EXPECT_TRUE(window_.Opt_fixed);
    EXPECT_TRUE(window_.frm_fixed_enabled);
    EXPECT_FALSE(window_.frm_percent_enabled);
    EXPECT_TRUE(window_.cmd_ok_enabled);
}

TEST_F(ScaleXyWindowTest, a_change_tests_its_own_pair) {
    struct Case {
        ScaleBox box;
        const char* typed;
        bool enabled;
    };
    const Case cases[] = {
        {ScaleBox::fixed_x, "0", false},   {ScaleBox::fixed_x, "-2", true},
        {ScaleBox::fixed_y, "", false},    {ScaleBox::percent_x, "50", true},
        {ScaleBox::percent_y, "x", false}, {ScaleBox::percent_y, "0.1", true},
        {ScaleBox::fixed_x, "5", false}, // fixed Y is still empty
        {ScaleBox::fixed_y, "1e2", true},
    };
    Scale_xy_Load();
    for (const Case& c : cases) {
        SCOPED_TRACE(c.typed);
        type(c.box, c.typed);
        EXPECT_EQ(window_.cmd_ok_enabled, c.enabled);
    }
}

TEST_F(ScaleXyWindowTest, keys_that_pass) {
    Scale_xy_Load();
    for (const int key : {int{'0'}, int{'5'}, int{'9'}, 8, 13, int{'.'}})
        EXPECT_EQ(Scale_xy_KeyPress(ScaleBox::fixed_x, key), key);
    EXPECT_EQ(Scale_xy_KeyPress(ScaleBox::percent_y, ','), '.');
    EXPECT_TRUE(platform_.windows.calls.empty());
}

TEST_F(ScaleXyWindowTest, a_refused_key_resets_its_box_alone) {
    const std::pair<ScaleBox, const char*> boxes[] = {{ScaleBox::fixed_x, "txt_fixed_x"},
                                                      {ScaleBox::fixed_y, "txt_fixed_y"},
                                                      {ScaleBox::percent_x, "txt_percent_x"},
                                                      {ScaleBox::percent_y, "txt_percent_y"}};
    for (const auto& [box, name] : boxes) {
        SCOPED_TRACE(name);
        Scale_xy_Load();
        platform_.windows.calls.clear();
        platform_.dialogs.boxes.clear();
        EXPECT_EQ(Scale_xy_KeyPress(box, '-'), 0);
        for (const auto& [other, ignored] : boxes)
            EXPECT_EQ(text(other) == "0", other == box);
        EXPECT_FALSE(window_.cmd_ok_enabled);
        ASSERT_EQ(platform_.dialogs.boxes.size(), 1U);
        EXPECT_EQ(platform_.dialogs.boxes[0].text, "Sólo se permiten números!");
        EXPECT_EQ(platform_.windows.calls,
                  std::vector<std::string>{std::string("focus Scale_xy.") + name});
    }
}

TEST_F(ScaleXyWindowTest, ok_scales_by_size_and_rounds_and_stays_open) {
    Scale_xy_Load();
    type(ScaleBox::fixed_x, "6");
    type(ScaleBox::fixed_y, "1");
    session.Precision = 1;
    Scale_xy_cmd_ok_Click();
    EXPECT_EQ(shape(), (Points{{6, 0.2}, {0, 1}, {-3, 0}}));
    EXPECT_EQ(session.Velmora.Lst_Coords.size(), 3U);
    EXPECT_EQ(session.Longitud, 9);
    EXPECT_EQ(session.CanvasX0, 1000); // laid out, then painted
    EXPECT_TRUE(platform_.windows.calls.empty());
}

TEST_F(ScaleXyWindowTest, ok_again_scales_the_last_result) {
    Scale_xy_Load();
    Opt_percent_Click();
    type(ScaleBox::percent_x, "50");
    Scale_xy_cmd_ok_Click();
    Scale_xy_cmd_ok_Click();
    EXPECT_EQ(shape(), (Points{{0.5, 1}, {0, 4}, {-0.25, 0}}));
}

TEST_F(ScaleXyWindowTest, with_a_comma_machine_a_filled_size_reads_up_to_the_comma) {
    session.SepDecimal = ',';
    Scale_xy_Load();
    EXPECT_EQ(window_.txt_fixed_y, "4,5");
    Scale_xy_cmd_ok_Click();
    EXPECT_EQ(Forma.Pto[1].Y, 4);
}

TEST_F(ScaleXyWindowTest, cancel_unloads) {
    Scale_xy_cmd_cancel_Click();
    EXPECT_EQ(platform_.windows.calls, std::vector<std::string>{"unload Scale_xy"});
}

} // namespace
} // namespace velmora
