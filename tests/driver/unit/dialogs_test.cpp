#include "scripted/dialogs.h"

#include "unit/recorded.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace velmora::driver {
namespace {

using testing::ElementsAre;

struct ScriptedDialogsTest : testing::Test, Recorded {
    Answers answers;
    ScriptedDialogs dialogs{transcript, places, answers};
};

TEST_F(ScriptedDialogsTest, a_box_takes_its_answer_from_the_queue) {
    answers.boxes = {7, 2};
    EXPECT_EQ(dialogs.message("¿Salir?", 36, "Velmora 1.0"), 7);
    EXPECT_EQ(dialogs.message("x", 1, "V"), 2);
    EXPECT_THAT(lines, ElementsAre(R"(box 36 "Velmora 1.0" ¿Salir? -> 7)", "box 1 V x -> 2"));
}

TEST_F(ScriptedDialogsTest, a_box_without_an_answer_takes_its_default) {
    for (const int ok : {0, 1, 16, 48, 65})
        EXPECT_EQ(dialogs.message("x", ok, "V"), 1) << ok;
    for (const int yes : {3, 4, 20, 35, 36})
        EXPECT_EQ(dialogs.message("x", yes, "V"), 6) << yes;
}

TEST_F(ScriptedDialogsTest, an_input_is_taken_or_cancelled) {
    answers.inputs = {"mi ala", std::nullopt};
    EXPECT_EQ(dialogs.input("Ahora :", "Velmora 1.0", ""), "mi ala");
    EXPECT_EQ(dialogs.input("a", "b", "c"), std::nullopt);
    EXPECT_EQ(dialogs.input("a", "b", "c"), std::nullopt);
    EXPECT_THAT(lines, ElementsAre(R"(input "Velmora 1.0" "Ahora :" "" -> "mi ala")",
                                   "input b a c -> cancel", "input b a c -> cancel"));
}

TEST_F(ScriptedDialogsTest, an_empty_input_is_no_cancel) {
    answers.inputs = {""};
    EXPECT_EQ(dialogs.input("a", "b", "c"), "");
    EXPECT_THAT(lines, ElementsAre(R"(input b a c -> "")"));
}

TEST_F(ScriptedDialogsTest, file_dialogs_share_a_queue) {
    answers.paths = {"/tmp/x/work/a.dat", std::nullopt};
    EXPECT_EQ(dialogs.open_file({"T", "DAT|*.DAT", "/tmp/x/program", ""}), "/tmp/x/work/a.dat");
    EXPECT_EQ(dialogs.save_file({"T", ".dat | *.dat", "/tmp/x/work", "ala"}), "");
    EXPECT_THAT(lines, ElementsAre(R"(open T DAT|*.DAT $PROGRAM "" -> $WORK/a.dat)",
                                   R"(save T ".dat | *.dat" $WORK ala -> cancel)"));
}

TEST_F(ScriptedDialogsTest, colours_and_fonts) {
    answers.colours = {255, 0x80000000, std::nullopt};
    answers.fonts = {FontChoice{"DejaVu Sans", 12.5, true, true}, FontChoice{"Mono", 8}};
    EXPECT_EQ(dialogs.choose_colour(0), 255u);
    EXPECT_EQ(dialogs.choose_colour(0), 0x80000000);
    EXPECT_EQ(dialogs.choose_colour(0), std::nullopt);
    EXPECT_TRUE(dialogs.choose_font({}).has_value());
    EXPECT_TRUE(dialogs.choose_font({}).has_value());
    EXPECT_FALSE(dialogs.choose_font({}).has_value());
    EXPECT_THAT(lines, ElementsAre("colour -> 255", "colour -> -2147483648", "colour -> cancel",
                                   R"(font -> "DejaVu Sans" 12.5 bold italic)", "font -> Mono 8",
                                   "font -> cancel"));
}

} // namespace
} // namespace velmora::driver
