#include "forms/ajuste_opt.h"

#include "document/session.h"
#include "fakes/recording_platform.h"
#include "support/error_number.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

struct AjusteOptTest : testing::Test {
    test::RecordingPlatform machine{test::with_database};
    AjusteOptWindow& window = session.ajuste_opt;

    void type(std::string_view x, std::string_view y, std::string_view z) const {
        window.txt_X = x;
        window.txt_Y = y;
        window.txt_Z = z;
        ajuste_opt_Change();
    }
};

TEST_F(AjusteOptTest, the_boxes_are_empty_and_the_button_disabled_before_the_first_use) {
    window.txt_X = "9";
    window.cmb_ok_enabled = true;
    ajuste_opt_Load();
    EXPECT_EQ(window.txt_X + window.txt_Y + window.txt_Z, "");
    EXPECT_FALSE(window.cmb_ok_enabled);
}

TEST_F(AjusteOptTest, stored_distances_are_offered_again_each_filling_a_change) {
    session.OptX = 100;
    session.OptY = 0.5;
    session.OptZ = 400;
    ajuste_opt_Load();
    EXPECT_EQ(window.txt_X, "100");
    EXPECT_EQ(window.txt_Y, "0.5");
    EXPECT_EQ(window.txt_Z, "400");
    EXPECT_TRUE(window.cmb_ok_enabled);
}

TEST_F(AjusteOptTest, a_stored_0_leaves_its_box_empty) {
    session.OptX = 100;
    session.OptZ = 400;
    ajuste_opt_Load();
    EXPECT_EQ(window.txt_Y, "");
    EXPECT_FALSE(window.cmb_ok_enabled);
}

TEST_F(AjusteOptTest, a_comma_of_the_machine_shows_but_is_not_read) {
    session.SepDecimal = ',';
    session.OptX = 0.5;
    session.OptY = 2.5;
    session.OptZ = 400;
    ajuste_opt_Load();
    EXPECT_EQ(window.txt_X, "0,5");
    EXPECT_FALSE(window.cmb_ok_enabled);
    cmb_ok_Click();
    EXPECT_EQ(session.OptX, 0);
    EXPECT_EQ(session.OptY, 2);
}

TEST_F(AjusteOptTest, the_button_is_enabled_for_three_values_other_than_0) {
    const struct {
        std::string x, y, z;
        bool enabled;
    } cases[] = {
        {"1", "2", "3", true},     {"", "2", "3", false},     {"1", "", "3", false},
        {"1", "2", "", false},     {"0", "2", "3", false},    {"1", "2", "0.0", false},
        {"-1", "-.5", "3x", true}, {"x1", "2", "3", false},   {"1", "2", "1E-300", true},
        {".", "2", "3", false},    {"1.2.3", "2", "3", true},
    };
    for (const auto& [x, y, z, enabled] : cases) {
        SCOPED_TRACE(x + "|" + y + "|" + z);
        type(x, y, z);
        EXPECT_EQ(window.cmb_ok_enabled, enabled);
    }
}

TEST_F(AjusteOptTest, digits_backspace_Enter_and_the_point_pass) {
    window.txt_X = "12";
    for (const int key : {int{'0'}, int{'9'}, 8, 13, int{'.'}})
        EXPECT_EQ(ajuste_opt_KeyPress(AjusteOptBox::txt_X, key), key);
    EXPECT_EQ(window.txt_X, "12");
    EXPECT_TRUE(machine.dialogs.boxes.empty());
}

TEST_F(AjusteOptTest, any_other_key_resets_its_box_and_that_is_a_change) {
    type("1", "2", "3");
    EXPECT_EQ(ajuste_opt_KeyPress(AjusteOptBox::txt_Z, ','), 0);
    EXPECT_EQ(window.txt_X + window.txt_Y + window.txt_Z, "120");
    EXPECT_FALSE(window.cmb_ok_enabled);
    EXPECT_EQ(ajuste_opt_KeyPress(AjusteOptBox::txt_X, '-'), 0);
    EXPECT_EQ(ajuste_opt_KeyPress(AjusteOptBox::txt_Y, 'a'), 0);
    EXPECT_EQ(window.txt_X + window.txt_Y + window.txt_Z, "000");
    EXPECT_EQ(machine.windows.calls,
              (std::vector<std::string>{"focus ajuste_opt.txt_Z", "focus ajuste_opt.txt_X",
                                        "focus ajuste_opt.txt_Y"}));
    ASSERT_EQ(machine.dialogs.boxes.size(), 3U);
    EXPECT_EQ(machine.dialogs.boxes[0].text, "Sólo se permiten números!");
}

TEST_F(AjusteOptTest, the_button_keeps_the_values_and_closes_the_window) {
    type("100", "50", "400");
    cmb_ok_Click();
    EXPECT_EQ(session.OptX, 100);
    EXPECT_EQ(session.OptY, 50);
    EXPECT_EQ(session.OptZ, 400);
    EXPECT_EQ(machine.windows.calls, std::vector<std::string>{"unload ajuste_opt"});
}

TEST_F(AjusteOptTest, a_distance_that_fails_comes_behind_the_other_two) {
    window.txt_X = "100";
    window.txt_Y = "1E999";
    window.txt_Z = "400";
    EXPECT_EQ(test::number_of(cmb_ok_Click), error::overflow);
    EXPECT_EQ(session.OptX, 100);
    EXPECT_EQ(session.OptZ, 400);
    EXPECT_EQ(session.OptY, 0);
    EXPECT_TRUE(machine.windows.calls.empty());
}

TEST_F(AjusteOptTest, a_text_beyond_f64_raises_6) {
    EXPECT_EQ(test::number_of([&] { type("1E999", "1", "1"); }), error::overflow);
}

} // namespace
} // namespace velmora
