#include "forms/wininfo.h"

#include "document/session.h"
#include "forms/intro.h"
#include "starting.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

using test::FakeForm;
using test::RecordingPlatform;
using test::StartTest;

TEST_F(StartTest, wininfo_takes_its_literals) {
    FakeForm form("wininfo");
    machine.windows.forms["wininfo"] = &form;
    intro_Load();
    machine.database->execute("DELETE FROM wininfo");
    machine.database->execute("INSERT INTO wininfo VALUES ('wininfo','E','Título','')");
    wininfo_Load();
    EXPECT_EQ(form.own_caption, "Título");
}

TEST(WinInfoWindow, it_rolls_up_when_it_loses_the_activation_unless_pinned) {
    RecordingPlatform platform;
    wininfo_Activate();
    EXPECT_EQ(wininfo_height(), 4245);
    wininfo_Deactivate();
    EXPECT_EQ(wininfo_height(), 180);
    wininfo_Activate();
    session.wininfo.chk_wininfo = true;
    wininfo_Deactivate();
    EXPECT_EQ(wininfo_height(), 4245);
}

} // namespace
} // namespace velmora
