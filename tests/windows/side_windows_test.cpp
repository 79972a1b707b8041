// The floating windows: values both ways, keys, rolling up, the place beside the main window.
#include "windows/windows_test.h"

#include <QAbstractButton>
#include <QLineEdit>
#include <QTabWidget>
#include <QtTest>
#include <gmock/gmock.h>

namespace velmora::test {

namespace {

using testing::ElementsAre;

class SideWindowsTest : public WindowsTest {
  protected:
    void SetUp() override {
        start_program();
        Forma.Pto.redim(2);
        Forma.Pto[1] = {1.23456789, 0};
        Forma.Pto[2] = {0, 1};
        dialogs().boxes.clear();
    }
    QLineEdit& box(const char* name) { return control<QLineEdit>("winoptions", name); }
    QAbstractButton& button(const char* name) {
        return control<QAbstractButton>("winoptions", name);
    }
    int height(const char* name) { return window(name)->height(); }
};

TEST_F(SideWindowsTest, options_show_the_defaults_and_the_flags) {
    EXPECT_EQ(box("TxtPutArc").text(), "25");
    EXPECT_EQ(box("TxtPutCircle").text(), "50");
    EXPECT_EQ(box("TxtPrecision").text(), "6");
    EXPECT_EQ(box("Txt_zoom").text(), "30000");
    for (const char* on :
         {"ChkPtos", "ChkPtosCtrl", "ChkCoords", "ChkDATSinc", "chk_optimize", "chk_Redim_Capture"})
        EXPECT_TRUE(button(on).isChecked()) << on;
    for (const char* off : {"ChkSCR", "Chk_DATPerfil", "chk_winoptions"})
        EXPECT_FALSE(button(off).isChecked()) << off;
}

TEST_F(SideWindowsTest, the_output_types_exclude_each_other) {
    session.Velmora.TxtDat_File = "/tmp/ala.dat";
    button("ChkSCR").click();
    EXPECT_EQ(session.GenSCR, True);
    EXPECT_EQ(session.GenDATSinc, False);
    EXPECT_FALSE(button("ChkDATSinc").isChecked());
    EXPECT_EQ(control<QLineEdit>("Velmora", "TxtDat_File").text(), "/tmp/ala.scr");
    button("Chk_DATPerfil").click();
    EXPECT_EQ(session.GenDATPerfil, True);
    EXPECT_FALSE(button("ChkSCR").isChecked());
    EXPECT_EQ(session.FileName, "/tmp/ala.dat");
}

TEST_F(SideWindowsTest, the_options_that_the_logic_chooses_are_shown) {
    session.winoptions.ChkDATSinc = false;
    session.winoptions.ChkSCR = true;
    windows().refresh();
    EXPECT_TRUE(button("ChkSCR").isChecked());
    EXPECT_FALSE(button("ChkDATSinc").isChecked());
    session.winoptions.ChkSCR = false;
    windows().refresh();
    EXPECT_FALSE(button("ChkSCR").isChecked()) << "the last one chosen can be cleared too";
}

TEST_F(SideWindowsTest, check_boxes_set_their_flags) {
    button("chk_optimize").click();
    EXPECT_EQ(session.OptimizeOnGen, False);
    button("chk_Redim_Capture").click();
    EXPECT_EQ(session.RedimCapture, False);
    button("ChkCoords").click();
    EXPECT_EQ(session.ShowCoords, False);
    button("ChkPtos").click();
    EXPECT_EQ(session.ShowPtos, False);
    button("ChkPtosCtrl").click();
    EXPECT_EQ(session.ShowPtosCtrl, False);
}

TEST_F(SideWindowsTest, a_refused_key_shows_message6_and_sets_the_box_to_zero) {
    for (const char* name : {"TxtPutArc", "TxtPutCircle", "Txt_zoom"}) {
        dialogs().boxes.clear();
        QTest::keyClick(&box(name), 'x');
        ASSERT_EQ(dialogs().boxes.size(), 1U) << name;
        EXPECT_EQ(dialogs().boxes[0].text, "Sólo se permiten números!");
        EXPECT_EQ(box(name).text(), "0") << name;
    }
}

TEST_F(SideWindowsTest, digits_and_backspace_pass) {
    box("TxtPutArc").clear();
    QTest::keyClicks(&box("TxtPutArc"), "123");
    QTest::keyClick(&box("TxtPutArc"), Qt::Key_Backspace);
    windows().refresh();
    EXPECT_EQ(session.winoptions.TxtPutArc, "12");
    EXPECT_TRUE(dialogs().boxes.empty());
}

TEST_F(SideWindowsTest, keys_that_move_copy_and_paste_are_no_typing) {
    for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Home, Qt::Key_Delete, Qt::Key_Tab})
        QTest::keyClick(&box("TxtPutArc"), key);
    QTest::keyClick(&box("TxtPutArc"), Qt::Key_C, Qt::ControlModifier);
    EXPECT_TRUE(dialogs().boxes.empty());
}

TEST_F(SideWindowsTest, enter_takes_the_zoom_with_either_separator) {
    box("Txt_zoom").setText("2,5");
    QTest::keyClick(&box("Txt_zoom"), Qt::Key_Return);
    EXPECT_EQ(session.ZoomFactor, 2.5);
    EXPECT_EQ(box("Txt_zoom").text(), "2.5");
    EXPECT_NE(window("winoptions"), nullptr);
}

TEST_F(SideWindowsTest, a_changed_precision_rounds_the_shape_with_the_precision_in_force) {
    session.Precision = 2;
    box("TxtPrecision").setText("3");
    EXPECT_EQ(Forma.Pto[1].X, 1.23);
    EXPECT_EQ(session.Precision, 2);
}

TEST_F(SideWindowsTest, a_zero_in_the_precision_box_rounds_nothing) {
    box("TxtPrecision").setText("0");
    EXPECT_EQ(Forma.Pto[1].X, 1.23456789);
}

TEST_F(SideWindowsTest, information_shows_the_figures_and_takes_no_typing) {
    session.wininfo.TxtTotalPtos = "24";
    session.wininfo.TxtAcadFile = "ALA.DWG";
    windows().refresh();
    EXPECT_EQ(control<QLineEdit>("wininfo", "TxtTotalPtos").text(), "24");
    EXPECT_EQ(control<QLineEdit>("wininfo", "TxtAcadFile").text(), "ALA.DWG");
    for (const QLineEdit* shown : window("wininfo")->findChildren<QLineEdit*>())
        EXPECT_TRUE(shown->isReadOnly()) << shown->objectName().toStdString();
}

TEST_F(SideWindowsTest, information_follows_the_desktops_colours) {
    QPalette dark;
    dark.setColor(QPalette::Window, QColor("#202327"));
    window("wininfo")->setPalette(dark);
    windows().activate("wininfo");
    settle();
    auto& shown = control<QLineEdit>("wininfo", "TxtTotalPtos");
    shown.setText("");
    EXPECT_EQ(shown.grab().toImage().pixelColor(shown.rect().center()), QColor("#202327"));
}

TEST_F(SideWindowsTest, a_window_rolls_up_when_another_takes_the_activation_unless_pinned) {
    windows().activate("winoptions");
    const int unrolled = height("winoptions");
    EXPECT_GT(unrolled, 200);
    windows().activate("Velmora");
    EXPECT_EQ(height("winoptions"), 1);
    EXPECT_FALSE(window("winoptions")->findChild<QWidget*>("content")->isVisible());

    windows().activate("winoptions");
    EXPECT_EQ(height("winoptions"), unrolled);
    button("chk_winoptions").click();
    windows().activate("Velmora");
    EXPECT_EQ(height("winoptions"), unrolled);
}

TEST_F(SideWindowsTest, a_message_box_takes_no_activation) {
    windows().activate("winoptions");
    const int unrolled = height("winoptions");
    QTest::keyClick(&box("TxtPutArc"), 'x');
    EXPECT_EQ(height("winoptions"), unrolled);
}

TEST_F(SideWindowsTest, losing_the_activation_rolls_up_too) {
    windows().activate("wininfo");
    EXPECT_GT(height("wininfo"), 200);
    windows().deactivate("wininfo");
    EXPECT_EQ(height("wininfo"), 1);
}

TEST_F(SideWindowsTest, the_windows_follow_the_main_windows_right_side) {
    QWidget& main = *window("Velmora");
    for (const int width : {700, 780}) {
        main.resize(width, 500);
        settle();
        for (const char* name : {"wininfo", "winoptions"})
            EXPECT_NEAR(window(name)->frameGeometry().right(), main.frameGeometry().right(), 40)
                << name << " at " << width;
    }
}

TEST_F(SideWindowsTest, they_stay_where_they_are_while_the_main_window_is_minimised) {
    QWidget& main = *window("Velmora");
    main.resize(700, 500);
    settle();
    const QPoint place = window("wininfo")->pos();
    main.showMinimized();
    main.resize(900, 600);
    settle();
    EXPECT_EQ(window("wininfo")->pos(), place);
    main.showNormal();
    main.resize(800, 500);
    settle();
    EXPECT_NE(window("wininfo")->pos(), place);
}

TEST_F(SideWindowsTest, they_stand_beside_the_main_window_where_the_screen_has_room) {
    constexpr int kEnough = 1700;
    const QRect screen = window("Velmora")->screen()->availableGeometry();
    for (const char* name : {"wininfo", "winoptions"}) {
        const QRect frame = window(name)->frameGeometry();
        EXPECT_EQ(frame.left() > window("Velmora")->frameGeometry().right(),
                  screen.width() >= kEnough)
            << name;
        EXPECT_LE(frame.right(), screen.right()) << name;
    }
}

TEST_F(SideWindowsTest, the_options_leave_room_for_the_open_information_and_its_title) {
    constexpr int kTitle = 25;
    windows().activate("wininfo");
    EXPECT_GE(window("winoptions")->frameGeometry().top() - window("wininfo")->geometry().bottom(),
              kTitle);
}

TEST_F(SideWindowsTest, shown_they_leave_the_keyboard_with_the_main_window) {
    QWidget& main = *window("Velmora");
    for (const char* name : {"wininfo", "winoptions"}) {
        for (const bool loaded : {true, false}) {
            SCOPED_TRACE(testing::Message() << name << (loaded ? " loaded" : " closed before"));
            if (!loaded)
                window(name)->close();
            main.activateWindow();
            control<QWidget>("Velmora", "pic").setFocus();
            settle();
            ASSERT_EQ(QApplication::activeWindow(), &main);
            show(name);
            EXPECT_EQ(QApplication::activeWindow(), &main);
            EXPECT_TRUE(control<QWidget>("Velmora", "pic").hasFocus());
        }
    }
}

// It got the activation when it was shown, and keeps it until the main window is used.
TEST_F(SideWindowsTest, shown_a_window_stays_open_until_the_main_window_is_used) {
    QWidget& main = *window("Velmora");
    main.activateWindow();
    settle();
    show("wininfo");
    EXPECT_FALSE(session.wininfo.rolled_up);
    main.activateWindow(); // a message box in between gives the focus back
    settle();
    EXPECT_FALSE(session.wininfo.rolled_up);
    QTest::keyClick(main.windowHandle(), Qt::Key_Shift);
    EXPECT_TRUE(session.wininfo.rolled_up);
    show("wininfo");
    EXPECT_FALSE(session.wininfo.rolled_up);
    QTest::mouseClick(main.windowHandle(), Qt::MiddleButton, {}, QPoint(5, 5));
    EXPECT_TRUE(session.wininfo.rolled_up);
}

TEST_F(SideWindowsTest, a_window_that_the_user_went_to_rolls_up_when_the_focus_leaves_it) {
    show("wininfo");
    window("wininfo")->activateWindow();
    settle();
    EXPECT_EQ(QApplication::activeWindow(), window("wininfo"));
    window("Velmora")->activateWindow();
    settle();
    EXPECT_TRUE(session.wininfo.rolled_up);
}

TEST_F(SideWindowsTest,
       shown_again_a_window_keeps_the_users_place_until_the_main_window_is_resized) {
    QWidget& main = *window("Velmora");
    const QPoint place(40, 70);
    for (const char* name : {"wininfo", "winoptions"}) {
        SCOPED_TRACE(name);
        window(name)->move(place);
        show(name);
        EXPECT_EQ(window(name)->pos(), place);
        window(name)->close();
        settle();
        show(name);
        EXPECT_EQ(window(name)->pos(), place);
        window(name)->close();
        settle();
        main.resize(main.size() - QSize(20, 20));
        settle();
        show(name);
        EXPECT_NEAR(window(name)->frameGeometry().right(), main.frameGeometry().right(), 40);
    }
}

TEST_F(SideWindowsTest, a_closed_side_window_comes_back_by_its_menu_entry) {
    told.clear();
    window("wininfo")->close();
    EXPECT_EQ(window("wininfo"), nullptr);
    control<QAction>("Velmora", "mnu_wininfo").trigger();
    ASSERT_NE(window("wininfo"), nullptr);
    EXPECT_TRUE(window("wininfo")->isVisible());
    EXPECT_THAT(told, ElementsAre("closed wininfo", "open wininfo"));
}

} // namespace

} // namespace velmora::test
