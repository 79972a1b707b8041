#include "document/feedback.h"

#include "document/session.h"

#include "fakes/recording_platform.h"
#include "platform/dialogs.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace velmora {
namespace {

using test::RecordingPlatform;
using test::ShownBox;
using testing::ElementsAre;

struct FeedbackTest : testing::Test {
    RecordingPlatform machine;
};

TEST_F(FeedbackTest, the_panel_and_the_pointer_tell_only_changes) {
    set_status("uno");
    set_status("uno");
    set_status("dos");
    EXPECT_THAT(machine.windows.statuses, ElementsAre("uno", "dos"));
    set_pointer(11);
    set_pointer(11);
    set_pointer(0);
    EXPECT_THAT(machine.windows.pointers, ElementsAre(11, 0));
}

TEST_F(FeedbackTest, each_DoEvents_is_one_yield) {
    for (int i = 0; i < 3; ++i)
        DoEvents();
    EXPECT_EQ(machine.windows.yields, 3);
}

TEST_F(FeedbackTest, a_box_without_a_title_has_the_programs_and_its_answer_stays) {
    machine.dialogs.answers = {answer::cancel};
    EXPECT_EQ(MsgBox("hola", buttons::ok_cancel), answer::cancel);
    EXPECT_EQ(session.Respuesta, answer::cancel);
    EXPECT_EQ(MsgBox("hola", 0, "Título"), answer::ok);
    EXPECT_EQ(session.Respuesta, answer::ok);
    EXPECT_THAT(machine.dialogs.boxes,
                ElementsAre(ShownBox{"hola", 1, "Velmora"}, ShownBox{"hola", 0, "Título"}));
}

TEST_F(FeedbackTest, a_cancelled_input_box_gives_the_empty_text) {
    machine.dialogs.inputs = {"7", std::nullopt};
    EXPECT_EQ(InputBox("cuántos", "Título", "3"), "7");
    EXPECT_EQ(InputBox("cuántos", "Título", "3"), "");
    EXPECT_THAT(machine.dialogs.input_calls[0], ElementsAre("cuántos", "Título", "3"));
}

TEST_F(FeedbackTest, the_box_of_a_trap_has_number_description_and_tail) {
    show_trap("Error Prueba nº: ", RuntimeError(7001, "propio"), "  - En Linea: 4");
    EXPECT_THAT(machine.dialogs.boxes,
                ElementsAre(ShownBox{"Error Prueba nº: 7001  - Desc: propio  - En Linea: 4", 0,
                                     "Velmora"}));
}

TEST_F(FeedbackTest, a_description_comes_in_the_language_in_use) {
    EXPECT_EQ(description_of(RuntimeError(11)), error_description(11, 'E'));
    session.Idioma = "I";
    EXPECT_EQ(description_of(RuntimeError(11)), error_description(11, 'I'));
    EXPECT_NE(error_description(11, 'E'), error_description(11, 'I'));
    session.Idioma = "";
    EXPECT_EQ(description_of(RuntimeError(11)), error_description(11, 'E'));
}

TEST_F(FeedbackTest, a_long_operation_frames_its_work) {
    LongOperation operation("Empieza");
    EXPECT_EQ(session.Velmora.StatusBar1, "Empieza");
    EXPECT_EQ(session.Velmora.MousePointer, 11);
    EXPECT_EQ(machine.windows.yields, 1);
    operation.finish("Acaba");
    EXPECT_EQ(session.Velmora.StatusBar1, "Acaba");
    EXPECT_EQ(session.Velmora.MousePointer, 0);
    EXPECT_EQ(machine.windows.yields, 2);
}

TEST_F(FeedbackTest, a_long_operation_that_fails_leaves_message_and_hourglass) {
    trap(
        [] {
            const LongOperation operation("Empieza");
            raise(error::subscript);
        },
        [](const RuntimeError&) {});
    EXPECT_EQ(session.Velmora.StatusBar1, "Empieza");
    EXPECT_EQ(session.Velmora.MousePointer, 11);
}

} // namespace
} // namespace velmora
