#include "forms/numeric_box.h"

#include "fakes/recording_platform.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

int changes = 0;

NumericBox plain(std::string& text) {
    return {.window = "setup", .control = "Txt_Def_Dec_Val", .text = text};
}

TEST(NumericBox, digits_backspace_and_Enter_pass) {
    test::RecordingPlatform platform;
    std::string text = "12";
    for (const int code : {int{'0'}, int{'1'}, int{'8'}, int{'9'}, 8, 13})
        EXPECT_EQ(numeric_key(plain(text), code), code);
    EXPECT_EQ(text, "12");
    EXPECT_TRUE(platform.windows.calls.empty());
}

TEST(NumericBox, any_other_key_is_swallowed_and_resets_the_box) {
    test::RecordingPlatform platform{test::with_database};
    for (const int code : {int{'/'}, int{':'}, int{'.'}, int{','}, int{'-'}, int{'a'}, int{' '}, 0,
                           3, 9, 22, 27, 0xF1, 0x2030, 0x131}) {
        SCOPED_TRACE(code);
        std::string text = "12";
        platform.windows.calls.clear();
        platform.dialogs.boxes.clear();
        EXPECT_EQ(numeric_key(plain(text), code), 0);
        EXPECT_EQ(text, "0");
        EXPECT_EQ(platform.windows.calls, std::vector<std::string>{"focus setup.Txt_Def_Dec_Val"});
    }
}

TEST(NumericBox, a_box_can_let_more_keys_pass_and_have_a_reset_text_of_its_own) {
    test::RecordingPlatform platform{test::with_database};
    std::string text = "12";
    const NumericBox box{"setup", "Txt_Def_Arc_Val", text, ".,", "3"};
    EXPECT_EQ(numeric_key(box, '.'), '.');
    EXPECT_EQ(numeric_key(box, ','), ',');
    EXPECT_EQ(text, "12");
    EXPECT_EQ(numeric_key(box, ';'), 0);
    EXPECT_EQ(text, "3");
}

TEST(NumericBox, a_reset_is_a_change_when_the_text_differs) {
    test::RecordingPlatform platform{test::with_database};
    std::string text = "12";
    const NumericBox box{"Compensa", "Txt_merma", text, ".", "0", [] {
                             ++changes;
                         }};
    changes = 0;
    EXPECT_EQ(numeric_key(box, 'x'), 0);
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(numeric_key(box, 'x'), 0);
    EXPECT_EQ(changes, 1);
}

} // namespace
} // namespace velmora
