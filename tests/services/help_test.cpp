#include "services/help.h"

#include "document/handlers.h"
#include "services/deployment.h"
#include "services/fake_form.h"
#include "support/recording_platform.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace velmora {
namespace {

using test::RecordingPlatform;
using testing::ElementsAre;
using testing::IsEmpty;

struct HelpTest : testing::Test {
    RecordingPlatform machine;

    static std::string to_support(const std::string& subject) {
        return "mailto:" + std::string(deployment::support_address) + "?subject=" + subject +
               "&body=&CC=&BCC=";
    }
};

TEST_F(HelpTest, a_mail_is_one_address_with_nothing_escaped) {
    EXPECT_EQ(EnviaMail("a@b.c", "uno & dos", "hola ñ\n", "d@e.f", "g@h.i"), -1);
    EXPECT_THAT(machine.shell.opened,
                ElementsAre("mailto:a@b.c?subject=uno & dos&body=hola ñ\n&CC=d@e.f&BCC=g@h.i"));
}

TEST_F(HelpTest, a_mail_succeeds_from_33_on) {
    const std::pair<int, int> cases[] = {{33, -1}, {32, 0}, {2, 0}, {0, 0}, {42, -1}};
    for (const auto& [result, success] : cases) {
        machine.shell.open_result = result;
        EXPECT_EQ(EnviaMail("a@b.c", "", "", "", ""), success) << result;
    }
}

TEST_F(HelpTest, the_mail_to_support_names_the_version) {
    mnu_mail();
    acerca_lbl_mail_Click();
    const std::string target = to_support("Velmora Ver: 1.0-(1011)");
    EXPECT_THAT(machine.shell.opened, ElementsAre(target, target));
}

TEST_F(HelpTest, the_web_page_opens_from_the_menu_and_the_about_box) {
    mnu_web();
    acerca_lbl_web_Click();
    EXPECT_THAT(machine.shell.opened, ElementsAre(deployment::web_page, deployment::web_page));
}

TEST_F(HelpTest, a_missing_help_file_gives_no_message) {
    machine.shell.open_result = 2;
    mnu_contenido();
    EXPECT_THAT(machine.shell.opened, ElementsAre(program_file("\\velmora.chm")));
    EXPECT_THAT(machine.dialogs.boxes, IsEmpty());
}

TEST_F(HelpTest, the_about_box_shows_version_and_names) {
    test::FakeForm form("acerca");
    machine.windows.forms["acerca"] = &form;
    acerca_Load();
    EXPECT_EQ(session.acerca.lblVer, "Velmora Ver.: 1.0 (1011)");
    EXPECT_EQ(session.acerca.SSPanel1, "");
    acerca_Activate();
    EXPECT_EQ(session.acerca.SSPanel1, deployment::helpers);
    EXPECT_FALSE(session.acerca.SSPanel1.empty());
}

TEST_F(HelpTest, both_windows_close_by_their_button) {
    acerca_Command1_Click();
    teclas_Command1_Click();
    EXPECT_THAT(machine.windows.calls, ElementsAre("unload acerca", "unload teclas"));
}

} // namespace
} // namespace velmora
