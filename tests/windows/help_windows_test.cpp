// The list of shortcut keys and the about box.
#include "windows/dialogs_test.h"

#include "document/state/program.h"
#include "services/guide.h"
#include "support/places.h"
#include "ui/link_label.h"
#include "ui/window_registry.h"

#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QWindow>
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>

namespace velmora::test {

namespace {

using testing::ElementsAre;

class HelpWindowsTest : public DialogsTest {
  protected:
    void deploy(const std::string& lines) const {
        std::ofstream(path("deployment.txt"), std::ios::binary) << lines;
    }
};

TEST_F(HelpWindowsTest, the_shortcuts_stand_beside_their_lines) {
    in_dialog("mnu_Shortkeys", "teclas", [this] {
        EXPECT_EQ(window("teclas")->windowTitle(), "Teclas Rápidas");
        EXPECT_EQ(control<QGroupBox>("teclas", "Frame1").title(), "Descripción de Teclas Rápidas");
        const std::tuple<int, const char*, const char*> lines[] = {
            {0, "F5", "- Actualiza la lista de coordenadas"},
            {4, "Ctrl+O", "- Cerrar Archivo"},
            {7, "Ctrl+A", "- Abrir Archivo"},
            {9, "Ctrl+F12", "- Aumenta Zoom"},
            {20, "N", "- Selecciona el punto siguiente"},
        };
        for (const auto& [at, key, line] : lines) {
            const std::string place = '(' + std::to_string(at) + ')';
            EXPECT_EQ(control<QLabel>("teclas", "lbl_key" + place).text(), key);
            EXPECT_EQ(control<QLabel>("teclas", "lbl_line" + place).text(), line);
        }
        expect_nothing_cut(*window("teclas"));
        picture(*window("teclas"), "teclas");
    });
    EXPECT_THAT(told, ElementsAre("open teclas", "closed teclas"));
}

TEST_F(HelpWindowsTest, f1_opens_the_page_of_the_window_in_the_language_of_the_program) {
    session.Idioma = "I";
    in_dialog("mnu_Shortkeys", "teclas", [this] {
        QTest::keyClick(window("teclas")->windowHandle(), Qt::Key_F1);
        EXPECT_THAT(shell().opened, ElementsAre(program_file("help/en/teclas.html")));
        QTest::keyClick(window("teclas")->windowHandle(), Qt::Key_F1, Qt::ShiftModifier);
        EXPECT_EQ(shell().opened.size(), 1U);
    });
}

TEST_F(HelpWindowsTest, without_the_page_f1_opens_the_guide) {
    shell().open_result = 2;
    QTest::keyClick(window("Velmora")->windowHandle(), Qt::Key_F1);
    EXPECT_THAT(shell().opened,
                ElementsAre(program_file("help/es/ventana.html"), program_file("velmora.chm")));
}

TEST_F(HelpWindowsTest, every_window_has_its_page_in_every_language) {
    for (const std::string_view name : window_names()) {
        if (name == "intro")
            continue; // it gives way to the next key
        const std::string page(guide_page(name));
        ASSERT_NE(page, "") << name << ": a line in services/guide.cpp";
        for (const char* language : {"es", "en", "fr", "pt", "it"})
            EXPECT_TRUE(std::filesystem::is_regular_file(test::source_dir() / "docs/help" /
                                                         language / (page + ".html")))
                << language << ' ' << page;
    }
}

TEST_F(HelpWindowsTest, enter_closes_the_shortcuts) {
    in_dialog("mnu_Shortkeys", "teclas", [this] {
        EXPECT_TRUE(control<QPushButton>("teclas", "Command1").hasFocus());
        EXPECT_EQ(control<QPushButton>("teclas", "Command1").text(), "Cerrar");
        QTest::keyClick(&control<QPushButton>("teclas", "Command1"), Qt::Key_Return);
        settle();
        EXPECT_EQ(window("teclas"), nullptr);
    });
}

TEST_F(HelpWindowsTest, the_about_box_names_version_and_helpers) {
    deploy("helper = Ana Ibáñez\nhelper = Luis\n");
    in_dialog("mnu_about", "acerca", [this] {
        EXPECT_EQ(control<QLabel>("acerca", "lblVer").text(), "Velmora Ver.: 1.0 (1011)");
        EXPECT_EQ(control<QLabel>("acerca", "SSPanel1").text(), "Ana Ibáñez\nLuis");
        EXPECT_THAT(tab_order(control<QPushButton>("acerca", "Command1")),
                    ElementsAre("Command1", "lbl_web", "lbl_mail"));
        expect_nothing_cut(*window("acerca"));
        picture(*window("acerca"), "acerca");
    });
    EXPECT_THAT(told, ElementsAre("open acerca", "closed acerca"));
}

TEST_F(HelpWindowsTest, without_names_the_about_box_has_no_empty_panel) {
    in_dialog("mnu_about", "acerca", [this] {
        EXPECT_FALSE(control<QLabel>("acerca", "SSPanel1").isVisible());
        expect_nothing_cut(*window("acerca"));
        picture(*window("acerca"), "acerca-no-names");
    });
}

TEST_F(HelpWindowsTest, the_about_box_leads_to_the_web_page_and_to_a_mail) {
    deploy("web_page = https://taller.example/\nsupport_address = ayuda@taller.example\n");
    in_dialog("mnu_about", "acerca", [this] {
        QTest::mouseClick(&control<LinkLabel>("acerca", "lbl_web"), Qt::LeftButton);
        QTest::keyClick(&control<LinkLabel>("acerca", "lbl_mail"), Qt::Key_Space);
        ASSERT_EQ(shell().opened.size(), 2U);
        EXPECT_EQ(shell().opened[0], "https://taller.example/");
        EXPECT_THAT(shell().opened[1], testing::StartsWith("mailto:ayuda@taller.example?"));
        control<QPushButton>("acerca", "Command1").click();
        settle();
        EXPECT_EQ(window("acerca"), nullptr);
    });
}

} // namespace

} // namespace velmora::test
