#include "services/help.h"

#include "commands/handlers.h"
#include "document/feedback.h"
#include "document/session.h"
#include "fakes/fake_form.h"
#include "fakes/recording_platform.h"
#include "forms/acerca.h"
#include "forms/teclas.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace velmora {
namespace {

using test::RecordingPlatform;
using testing::ElementsAre;
using testing::IsEmpty;

struct HelpTest : testing::Test {
    RecordingPlatform machine{test::with_database};

    void deploy(const std::string& lines) const { machine.write("deployment.txt", lines); }
    static std::string status() { return session.Velmora.StatusBar1; }
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
    deploy("support_address = ayuda@taller.example\n");
    mnu_mail();
    acerca_lbl_mail_Click();
    const std::string target = "mailto:ayuda@taller.example?subject=Velmora Ver: 1.0-(1011)"
                               "&body=&CC=&BCC=";
    EXPECT_THAT(machine.shell.opened, ElementsAre(target, target));
    EXPECT_EQ(status(), "");
}

TEST_F(HelpTest, without_an_address_no_mail_is_begun_and_the_status_panel_says_so) {
    for (const auto& entry : {mnu_mail, acerca_lbl_mail_Click}) {
        set_status("");
        entry();
        EXPECT_EQ(status(), "No hay ninguna dirección de soporte configurada!");
    }
    EXPECT_THAT(machine.shell.opened, IsEmpty());
    EXPECT_THAT(machine.dialogs.boxes, IsEmpty());
}

TEST_F(HelpTest, the_web_page_opens_from_the_menu_and_the_about_box) {
    deploy("web_page = https://taller.example/\n");
    mnu_web();
    acerca_lbl_web_Click();
    EXPECT_THAT(machine.shell.opened,
                ElementsAre("https://taller.example/", "https://taller.example/"));
}

TEST_F(HelpTest, without_a_page_nothing_opens_and_the_status_panel_says_so) {
    for (const auto& entry : {mnu_web, acerca_lbl_web_Click}) {
        set_status("");
        entry();
        EXPECT_EQ(status(), "No hay ninguna página Web configurada!");
    }
    EXPECT_THAT(machine.shell.opened, IsEmpty());
}

TEST_F(HelpTest, the_help_file_is_the_one_beside_the_program) {
    mnu_contenido();
    EXPECT_THAT(machine.shell.opened, ElementsAre(program_file("\\velmora.chm")));
}

TEST_F(HelpTest, a_missing_help_file_gives_no_message) {
    machine.shell.open_result = 2;
    mnu_contenido();
    EXPECT_THAT(machine.shell.opened, ElementsAre(program_file("\\velmora.chm")));
    EXPECT_THAT(machine.dialogs.boxes, IsEmpty());
}

TEST_F(HelpTest, the_about_box_shows_version_and_names) {
    deploy("helper = Ana\nhelper = Luis\n");
    test::FakeForm form("acerca");
    machine.windows.forms["acerca"] = &form;
    acerca_Load();
    EXPECT_EQ(session.acerca.lblVer, "Velmora Ver.: 1.0 (1011)");
    EXPECT_EQ(session.acerca.SSPanel1, "");
    acerca_Activate();
    EXPECT_EQ(session.acerca.SSPanel1, "Ana\nLuis");
}

TEST_F(HelpTest, both_windows_close_by_their_button) {
    acerca_Command1_Click();
    teclas_Command1_Click();
    EXPECT_THAT(machine.windows.calls, ElementsAre("unload acerca", "unload teclas"));
}

} // namespace
} // namespace velmora
