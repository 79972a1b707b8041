#include "scripted/machine.h"

#include "unit/recorded.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace velmora::driver {
namespace {

using testing::ElementsAre;

struct NoDesktop : Shell {
    std::vector<std::string>& recycled;
    explicit NoDesktop(std::vector<std::string>& list) : recycled(list) {}
    int open(std::string_view) override { return 0; }
    void play(std::string_view) override { ADD_FAILURE() << "a sound was played"; }
    bool recycle(std::string_view path) override {
        recycled.emplace_back(path);
        return recycled.size() == 1;
    }
};

struct ScriptedShellTest : testing::Test, Recorded {
    std::vector<std::string> recycled;
    ScriptedShell shell{transcript, places, std::make_unique<NoDesktop>(recycled)};
};

TEST_F(ScriptedShellTest, tells_sounds_and_programs_and_starts_none) {
    shell.play("/tmp/x/program/mdbwav0.wav");
    EXPECT_GE(shell.open("/tmp/x/work/mi ala.dat"), 33);
    EXPECT_THAT(lines,
                ElementsAre("sound $PROGRAM/mdbwav0.wav", R"(shell open "$WORK/mi ala.dat")"));
}

TEST_F(ScriptedShellTest, deletes_through_the_desktop_without_a_line) {
    EXPECT_TRUE(shell.recycle("/tmp/x/work/a"));
    EXPECT_FALSE(shell.recycle("/tmp/x/work/b"));
    EXPECT_THAT(recycled, ElementsAre("/tmp/x/work/a", "/tmp/x/work/b"));
    EXPECT_TRUE(lines.empty());
}

TEST(ScriptedSettings, keep_what_is_saved) {
    ScriptedSettings settings;
    EXPECT_EQ(settings.get("Values", "sound"), std::nullopt);
    settings.save("Values", "sound", "0");
    settings.save("Values", "sound", "1");
    EXPECT_EQ(settings.get("Values", "sound"), "1");
    EXPECT_EQ(settings.get("Colors", "sound"), std::nullopt);
    EXPECT_EQ(settings.all().size(), 1u);
}

} // namespace
} // namespace velmora::driver
