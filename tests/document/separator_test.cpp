#include "document/separator.h"

#include "document/session.h"
#include "fakes/recording_platform.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

TEST(Separator, every_foreign_separator_becomes_the_machines) {
    test::RecordingPlatform platform;
    std::string room;
    EXPECT_EQ(to_machine_separator("1,5 -2.25 3,", room), "1.5 -2.25 3.");
    EXPECT_EQ(to_machine_separator("1.5", room), "1.5");
    EXPECT_EQ(to_machine_separator("", room), "");
    session.SepDecimal = ',';
    EXPECT_EQ(to_machine_separator("1,5 -2.25 3.", room), "1,5 -2,25 3,");
}

TEST(Separator, a_text_without_the_foreign_one_is_not_copied) {
    test::RecordingPlatform platform;
    std::string room;
    const std::string_view text = "1.5 2.5";
    EXPECT_EQ(to_machine_separator(text, room).data(), text.data());
}

TEST(Separator, dotted_texts_change_on_a_comma_machine_alone) {
    test::RecordingPlatform platform;
    std::string room;
    EXPECT_EQ(point_to_machine_separator("1,5", room), "1,5");
    EXPECT_EQ(point_to_machine_separator("1.5", room), "1.5");
    session.SepDecimal = ',';
    EXPECT_EQ(point_to_machine_separator("1.5", room), "1,5");
    EXPECT_EQ(point_to_machine_separator("1,5", room), "1,5");
}

} // namespace
} // namespace velmora
