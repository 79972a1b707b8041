#include "windows/dialogs_test.h"

#include "support/outline.h"
#include "ui/colour_label.h"
#include "ui/sample_pic.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <gmock/gmock.h>

namespace velmora::test {

namespace {

using testing::ElementsAre;

constexpr std::uint32_t kGreen = 0x00FF00;
constexpr const char* kColourLabels[] = {
    "lblcolor_fondo",    "lblcolor_ejes",     "lblcolor_lineas",
    "lblcolor_lineaini", "lblcolor_lineados", "lblcolor_ptos",
    "lblcolor_ptosinc",  "lblcolor_ptosel",   "lblcolor_coords"};

class SetupDialogTest : public DialogsTest {
  protected:
    void in_window(const std::function<void()>& steps) {
        set_shape({{0, 0}, {4, 0}, {4, 4}});
        in_dialog("mnu_paramgenerales", "setup", steps);
    }
    template <class Control>
    Control& part(std::string_view name) {
        return control<Control>("setup", name);
    }
    QColor colour_of(std::string_view label) {
        return part<ColourLabel>(label).palette().color(QPalette::Window);
    }
    void show_colours() {
        part<QTabWidget>("SSTab1").setCurrentIndex(1);
        settle();
    }
};

TEST_F(SetupDialogTest, opens_with_the_stored_values) {
    in_window([this] {
        EXPECT_EQ(part<QLineEdit>("Txt_Def_Dec_Val").text(), "6");
        EXPECT_EQ(part<QLineEdit>("Txt_Def_Arc_Val").text(), "25");
        EXPECT_EQ(part<QLineEdit>("Txt_Def_Circle_Val").text(), "50");
        EXPECT_EQ(part<QLineEdit>("Txt_Def_zoom_Val").text(), "30000");
        EXPECT_EQ(part<QComboBox>("Cmb_Lang").currentText(), "Español");
        EXPECT_TRUE(part<QCheckBox>("APP_Sound").isChecked());
        EXPECT_TRUE(part<QLineEdit>("Txt_Def_Dec_Val").hasFocus());
        expect_nothing_cut(*window("setup"));
        picture(*window("setup"), "setup");
    });
    EXPECT_THAT(told, ElementsAre("open setup", "closed setup"));
}

TEST_F(SetupDialogTest, offers_the_five_languages) {
    in_window([this] {
        QStringList names;
        for (int i = 0; i < part<QComboBox>("Cmb_Lang").count(); ++i)
            names << part<QComboBox>("Cmb_Lang").itemText(i);
        EXPECT_EQ(names, QStringList({"Español", "English", "Français", "Portugues", "Italiano"}));
    });
}

TEST_F(SetupDialogTest, tab_runs_through_the_tab_in_front) {
    in_window([this] {
        EXPECT_THAT(tab_order(part<QLineEdit>("Txt_Def_Dec_Val")),
                    ElementsAre("Txt_Def_Dec_Val", "Txt_Def_Arc_Val", "Txt_Def_Circle_Val",
                                "Txt_Def_zoom_Val", "Cmb_Lang", "APP_Sound", "chk_fit_open",
                                "cmd_ok", "cmd_cancel", "qt_tabwidget_tabbar"));
        show_colours();
        EXPECT_THAT(tab_order(part<ColourLabel>("lblcolor_fondo")),
                    ElementsAre("lblcolor_fondo", "lblcolor_ejes", "lblcolor_lineas",
                                "lblcolor_lineaini", "lblcolor_lineados", "lblcolor_ptos",
                                "lblcolor_ptosinc", "lblcolor_ptosel", "lblcolor_coords", "cmd_ok",
                                "cmd_cancel", "qt_tabwidget_tabbar"));
    });
}

TEST_F(SetupDialogTest, each_colour_label_picks_its_own_colour) {
    in_window([this] {
        show_colours();
        for (const char* label : kColourLabels) {
            ASSERT_NE(colour_of(label), QColor(0, 255, 0)) << label;
            dialogs().colours = {kGreen};
            QTest::mouseClick(&part<ColourLabel>(label), Qt::LeftButton);
            EXPECT_EQ(colour_of(label), QColor(0, 255, 0)) << label;
        }
    });
    for (const auto colour : {session.cl_fondo, session.cl_ejes, session.cl_lineas,
                              session.cl_linea1, session.cl_linea2, session.cl_punto,
                              session.cl_puntosinc, session.cl_puntosel, session.cl_coords})
        EXPECT_EQ(colour, kGreen);
}

TEST_F(SetupDialogTest, the_keyboard_picks_a_colour_too) {
    in_window([this] {
        show_colours();
        dialogs().colours = {kGreen};
        QTest::keyClick(&part<ColourLabel>("lblcolor_ejes"), Qt::Key_Return);
        EXPECT_EQ(colour_of("lblcolor_ejes"), QColor(0, 255, 0));
    });
}

TEST_F(SetupDialogTest, the_sample_shows_a_picked_colour_at_once) {
    in_window([this] {
        show_colours();
        picture(*window("setup"), "setup-colours");
        expect_nothing_cut(*window("setup"));
        EXPECT_EQ(part<SamplePic>("Test_Pic").grab().toImage().pixelColor(1, 1),
                  QColor(0xC8, 0xC8, 0xC8));
        dialogs().colours = {kGreen};
        QTest::mouseClick(&part<ColourLabel>("lblcolor_fondo"), Qt::LeftButton);
        EXPECT_EQ(part<SamplePic>("Test_Pic").grab().toImage().pixelColor(1, 1), QColor(0, 255, 0));
        dialogs().colours = {0x0000FF};
        QTest::mouseClick(&part<ColourLabel>("lblcolor_coords"), Qt::LeftButton);
        EXPECT_EQ(part<QLabel>("lbl_float").palette().color(QPalette::WindowText),
                  QColor(255, 0, 0));
        EXPECT_EQ(part<QLabel>("lbl_float").text(), "(X.xx,Y.yy)");
    });
}

TEST_F(SetupDialogTest, ok_stores_what_was_typed_and_chosen) {
    in_window([this] {
        part<QLineEdit>("Txt_Def_zoom_Val").selectAll();
        QTest::keyClicks(&part<QLineEdit>("Txt_Def_zoom_Val"), "750");
        part<QComboBox>("Cmb_Lang").setCurrentIndex(2);
        part<QCheckBox>("APP_Sound").click();
        part<QPushButton>("cmd_ok").click();
    });
    EXPECT_EQ((settings().values[{"Values", "Def_Zoom"}]), "750");
    EXPECT_EQ((settings().values[{"Values", "Idioma"}]), "F");
    EXPECT_EQ((settings().values[{"Values", "sound"}]), "0");
    EXPECT_EQ(control<QLineEdit>("winoptions", "Txt_zoom").text(), "750");
}

TEST_F(SetupDialogTest, cancel_stores_nothing) {
    const auto before = settings().values;
    in_window([this] {
        QTest::keyClick(&part<QLineEdit>("Txt_Def_Dec_Val"), Qt::Key_3);
        part<QPushButton>("cmd_cancel").click();
    });
    EXPECT_EQ(settings().values, before);
    EXPECT_EQ(session.Def_Dec, 6);
}

TEST_F(SetupDialogTest, each_box_has_its_own_text_after_a_refused_key) {
    in_window([this] {
        const std::pair<const char*, const char*> boxes[] = {{"Txt_Def_Dec_Val", "0"},
                                                             {"Txt_Def_Arc_Val", "3"},
                                                             {"Txt_Def_Circle_Val", "4"},
                                                             {"Txt_Def_zoom_Val", "0"}};
        for (const auto& [name, text] : boxes) {
            QTest::keyClick(&part<QLineEdit>(name), Qt::Key_X);
            EXPECT_EQ(part<QLineEdit>(name).text(), text) << name;
        }
        EXPECT_EQ(dialogs().boxes.size(), 4U);
    });
}

TEST_F(SetupDialogTest, a_box_below3_takes_the_focus_back) {
    in_window([this] {
        window("setup")->activateWindow();
        QLineEdit& arcs = part<QLineEdit>("Txt_Def_Arc_Val");
        arcs.setFocus();
        arcs.setText("2");
        QTest::keyClick(&arcs, Qt::Key_Tab);
        settle();
        EXPECT_EQ(arcs.text(), "3");
        EXPECT_TRUE(arcs.hasFocus());
        ASSERT_EQ(dialogs().boxes.size(), 1U);
        EXPECT_EQ(dialogs().boxes[0].text, "Un arco debe tener como mínimo 3 puntos!");
    });
}

} // namespace

} // namespace velmora::test
