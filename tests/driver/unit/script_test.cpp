#include "script/script.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace velmora::driver {
namespace {

TEST(ParseScript, leaves_comments_and_blank_lines_out_and_counts_them) {
    const auto lines = parse_script("# a comment\n\nstart\n  # another\n \t\n menu mnu_exit \n");
    ASSERT_EQ(lines.size(), 2u);
    EXPECT_EQ(lines[0].number, 3);
    EXPECT_EQ(lines[0].text, "start");
    EXPECT_EQ(lines[1].number, 6);
    EXPECT_EQ(lines[1].text, " menu mnu_exit ");
}

TEST(ParseScript, takes_any_line_end_and_none_at_the_end) {
    const auto lines = parse_script("\xEF\xBB\xBFstart\r\nrow 1\nrow 2");
    ASSERT_EQ(lines.size(), 3u);
    EXPECT_EQ(lines[0].text, "start");
    EXPECT_EQ(lines[1].text, "row 1");
    EXPECT_EQ(lines[2].text, "row 2");
}

TEST(ParseScript, keeps_a_number_sign_inside_a_line) {
    EXPECT_EQ(parse_script("type pic #").at(0).text, "type pic #");
}

TEST(ParseScript, of_nothing_is_nothing) {
    EXPECT_TRUE(parse_script("").empty());
    EXPECT_TRUE(parse_script("\n\n").empty());
}

} // namespace
} // namespace velmora::driver
