// The scaling dialog: its two modes, its boxes, and that it stays open.
#include "windows/windows_test.h"

#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <QtTest>

namespace velmora::test {

namespace {

class ScaleXyTest : public WindowsTest {
  protected:
    void SetUp() override {
        start_program();
        Forma.Pto.redim(2);
        Forma.Pto[1] = {4, 0};
        Forma.Pto[2] = {4, 2};
        session.Longitud = 4;
        session.Altura = 2;
        dialogs().boxes.clear();
    }
    /// Opens the dialog by its menu entry and works on it while it is open.
    void in_dialog(std::function<void()> work) {
        bool done = false;
        QTimer::singleShot(0, [&] {
            work();
            done = true;
            window("Scale_xy")->close();
        });
        control<QAction>("Velmora", "mnu_scale_xy").trigger();
        EXPECT_TRUE(done);
        EXPECT_EQ(window("Scale_xy"), nullptr);
    }
    QLineEdit& box(const char* name) { return control<QLineEdit>("Scale_xy", name); }
    QPushButton& ok() { return control<QPushButton>("Scale_xy", "cmd_ok"); }
    QAbstractButton& option(const char* name) { return control<QAbstractButton>("Scale_xy", name); }
    bool enabled(const char* name) { return control<QWidget>("Scale_xy", name).isEnabled(); }
};

TEST_F(ScaleXyTest, opens_with_the_fixed_mode_and_the_shapes_size) {
    in_dialog([this] {
        EXPECT_TRUE(option("Opt_fixed").isChecked());
        EXPECT_FALSE(option("Opt_percent").isChecked());
        EXPECT_EQ(box("txt_fixed_x").text(), "4");
        EXPECT_EQ(box("txt_fixed_y").text(), "2");
        EXPECT_EQ(box("txt_percent_x").text(), "100");
        EXPECT_EQ(box("txt_percent_y").text(), "100");
        EXPECT_TRUE(enabled("frm_fixed"));
        EXPECT_FALSE(enabled("frm_percent"));
        EXPECT_TRUE(ok().isEnabled());
    });
}

TEST_F(ScaleXyTest, each_mode_enables_its_frame) {
    in_dialog([this] {
        option("Opt_percent").click();
        EXPECT_FALSE(enabled("frm_fixed"));
        EXPECT_TRUE(enabled("frm_percent"));
        option("Opt_fixed").click();
        EXPECT_TRUE(enabled("frm_fixed"));
    });
}

TEST_F(ScaleXyTest, ok_needs_two_numbers_that_are_not_zero) {
    in_dialog([this] {
        box("txt_fixed_y").setText("0");
        EXPECT_FALSE(ok().isEnabled());
        box("txt_fixed_y").setText("3");
        EXPECT_TRUE(ok().isEnabled());
    });
}

TEST_F(ScaleXyTest, a_comma_types_a_point_and_any_other_key_is_refused) {
    in_dialog([this] {
        box("txt_fixed_x").clear();
        QTest::keyClicks(&box("txt_fixed_x"), "2,5");
        EXPECT_EQ(box("txt_fixed_x").text(), "2.5");
        EXPECT_TRUE(dialogs().boxes.empty());
        QTest::keyClick(&box("txt_fixed_x"), '-');
        EXPECT_EQ(dialogs().boxes.size(), 1U);
        EXPECT_EQ(box("txt_fixed_x").text(), "0");
    });
}

TEST_F(ScaleXyTest, ok_scales_and_the_dialog_stays_for_more) {
    in_dialog([this] {
        option("Opt_percent").click();
        box("txt_percent_x").setText("200");
        ok().click();
        ASSERT_NE(window("Scale_xy"), nullptr);
        EXPECT_EQ(Forma.Pto[1].X, 8);
        ok().click();
        EXPECT_EQ(Forma.Pto[1].X, 16);
        EXPECT_EQ(Forma.Pto[2].Y, 2);
    });
}

TEST_F(ScaleXyTest, enter_in_a_box_is_no_ok) {
    in_dialog([this] {
        box("txt_fixed_x").setText("8");
        QTest::keyClick(&box("txt_fixed_x"), Qt::Key_Return);
        EXPECT_EQ(Forma.Pto[1].X, 4);
        ASSERT_NE(window("Scale_xy"), nullptr);
    });
}

TEST_F(ScaleXyTest, enter_works_the_button_that_has_the_focus) {
    in_dialog([this] {
        ok().setFocus();
        QTest::keyClick(&ok(), Qt::Key_Return);
        EXPECT_EQ(Forma.Pto[1].X, 4);
        box("txt_fixed_x").setText("8");
        ok().setFocus();
        QTest::keyClick(&ok(), Qt::Key_Return);
        EXPECT_EQ(Forma.Pto[1].X, 8);
    });
}

} // namespace

} // namespace velmora::test
