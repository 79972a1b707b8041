#include "windows/dialogs_test.h"

#include "support/outline.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <gmock/gmock.h>

namespace velmora::test {

namespace {

using testing::ElementsAre;

class DelNptoDialogTest : public DialogsTest {
  protected:
    void in_window(const std::function<void()>& steps) {
        Points points;
        for (int i = 0; i < 6; ++i)
            points.push_back({static_cast<double>(i), 1});
        set_shape(points);
        session.PtoSel = 0;
        in_dialog("Delete_N_Ptos", "del_Npto", steps);
    }
    QLineEdit& box(std::string_view name) { return control<QLineEdit>("del_Npto", name); }
    QString maximum() { return control<QLabel>("del_Npto", "Lbl_Maxpoints").text(); }
};

TEST_F(DelNptoDialogTest, opens_with_the_most_points_that_may_go) {
    in_window([this] {
        EXPECT_EQ(maximum(), "(3)");
        EXPECT_EQ(box("Txt_JumpPoints").text(), "0");
        EXPECT_THAT(tab_order(box("Txt_Numpoints2del")),
                    ElementsAre("Txt_Numpoints2del", "Txt_JumpPoints", "cmd_ok", "cmd_cancel"));
        expect_nothing_cut(*window("del_Npto"));
        picture(*window("del_Npto"), "del_Npto");
    });
}

TEST_F(DelNptoDialogTest, typed_points_go) {
    in_window([this] {
        QTest::keyClick(&box("Txt_Numpoints2del"), Qt::Key_2);
        control<QPushButton>("del_Npto", "cmd_ok").click();
    });
    EXPECT_EQ(shape().size(), 4U);
    EXPECT_EQ(shape().front().X, 2);
}

TEST_F(DelNptoDialogTest, a_typed_interval_changes_the_maximum) {
    in_window([this] {
        box("Txt_JumpPoints").selectAll();
        QTest::keyClick(&box("Txt_JumpPoints"), Qt::Key_1);
        EXPECT_EQ(maximum(), "(1.5)");
    });
}

TEST_F(DelNptoDialogTest, a_refused_key_resets_its_box) {
    in_window([this] {
        QTest::keyClick(&box("Txt_Numpoints2del"), Qt::Key_2);
        QTest::keyClick(&box("Txt_Numpoints2del"), Qt::Key_Period);
        EXPECT_EQ(box("Txt_Numpoints2del").text(), "0");
        ASSERT_EQ(dialogs().boxes.size(), 1U);
        EXPECT_EQ(dialogs().boxes[0].text, "Sólo se permiten números!");
    });
}

TEST_F(DelNptoDialogTest, leaving_the_box_with_too_many_points_comes_back_to_it) {
    in_window([this] {
        window("del_Npto")->activateWindow();
        box("Txt_Numpoints2del").setFocus();
        QTest::keyClick(&box("Txt_Numpoints2del"), Qt::Key_4);
        QTest::keyClick(&box("Txt_Numpoints2del"), Qt::Key_Tab);
        settle();
        ASSERT_EQ(dialogs().boxes.size(), 1U);
        EXPECT_EQ(dialogs().boxes[0].text, "No se pueden eliminar tantos puntos!");
        EXPECT_EQ(box("Txt_Numpoints2del").text(), "0");
        EXPECT_TRUE(box("Txt_Numpoints2del").hasFocus());
    });
}

TEST_F(DelNptoDialogTest, cancel_leaves_the_shape) {
    in_window([this] {
        QTest::keyClick(&box("Txt_Numpoints2del"), Qt::Key_2);
        control<QPushButton>("del_Npto", "cmd_cancel").click();
    });
    EXPECT_EQ(shape().size(), 6U);
    EXPECT_THAT(told, ElementsAre("open del_Npto", "closed del_Npto"));
}

} // namespace

} // namespace velmora::test
