#include "app/command_line.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

namespace fs = std::filesystem;

TEST(CommandLine, help_and_version_are_answered_wherever_they_stand) {
    EXPECT_EQ(answer_of({"wing.dat", "--version"}), "Velmora 1.0.1011\n");
    EXPECT_TRUE(answer_of({"--help"})->starts_with("usage: velmora [FILE]\n"));
    EXPECT_EQ(answer_of({"-h"}), answer_of({"--help"}));
    EXPECT_EQ(answer_of({"wing.dat"}), std::nullopt);
}

TEST(CommandLine, a_file_after_two_dashes_may_be_called_anything) {
    EXPECT_EQ(answer_of({"--", "--help"}), std::nullopt);
    EXPECT_EQ(command_line_of({"--", "--help"}).file, fs::current_path() / "--help");
}

TEST(CommandLine, a_file_is_made_absolute) {
    EXPECT_EQ(command_line_of({"a/wing.dat"}).file, fs::current_path() / "a" / "wing.dat");
    EXPECT_EQ(command_line_of({"/b/wing.dat"}).file, "/b/wing.dat");
    EXPECT_TRUE(command_line_of({}).file.empty());
    EXPECT_EQ(command_line_of({}).fault, "");
}

TEST(CommandLine, what_is_not_understood_is_named) {
    EXPECT_EQ(command_line_of({"--zoom"}).fault, "unknown option --zoom");
    EXPECT_EQ(command_line_of({"a.dat", "b.dat"}).fault, "one file at a time, not b.dat too");
}

} // namespace
} // namespace velmora
