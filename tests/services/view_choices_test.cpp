#include "services/view_choices.h"

#include "document/session.h"
#include "fakes/recording_platform.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

struct ViewChoicesTest : testing::Test {
    std::optional<std::string> stored(const char* key) {
        return machine.settings.get("Values", key);
    }
    test::RecordingPlatform machine;
};

TEST_F(ViewChoicesTest, are_as_shipped_where_nothing_is_stored) {
    session.FitOnOpen = True;
    session.ShowRulers = session.ShowPosition = False;
    read_view_choices();
    EXPECT_EQ(session.FitOnOpen, False);
    EXPECT_EQ(session.ShowRulers, True);
    EXPECT_EQ(session.ShowPosition, True);
}

TEST_F(ViewChoicesTest, come_back_as_they_were) {
    session.FitOnOpen = True;
    session.ShowPosition = False;
    write_view_choices();
    session.FitOnOpen = False;
    session.ShowPosition = True;
    read_view_choices();
    EXPECT_EQ(session.FitOnOpen, True);
    EXPECT_EQ(session.ShowRulers, True);
    EXPECT_EQ(session.ShowPosition, False);
}

TEST_F(ViewChoicesTest, are_stored_once_they_were_changed) {
    write_view_choices();
    EXPECT_TRUE(machine.settings.values.empty());
    session.FitOnOpen = True;
    session.ShowRulers = False;
    write_view_choices();
    EXPECT_EQ(stored("fit_on_open"), "1");
    EXPECT_EQ(stored("rulers"), "0");
    EXPECT_EQ(stored("position"), std::nullopt);
    session.FitOnOpen = False;
    write_view_choices();
    EXPECT_EQ(stored("fit_on_open"), "0");
}

TEST_F(ViewChoicesTest, take_no_other_text_for_a_choice) {
    machine.settings.save("Values", "fit_on_open", "yes");
    machine.settings.save("Values", "rulers", "");
    read_view_choices();
    EXPECT_EQ(session.FitOnOpen, False);
    EXPECT_EQ(session.ShowRulers, True);
}

} // namespace
} // namespace velmora
