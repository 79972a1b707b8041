#include "windows/dialogs_test.h"

#include "support/outline.h"

#include <QLineEdit>
#include <QPushButton>
#include <gmock/gmock.h>

namespace velmora::test {

namespace {

using testing::ElementsAre;

class CompensaDialogTest : public DialogsTest {
  protected:
    void in_window(const std::function<void()>& steps) {
        set_shape({{0, 0}, {4, 0}, {4, 4}});
        in_dialog("mnu_paralela", "Compensa", steps);
    }
    QLineEdit& box() { return control<QLineEdit>("Compensa", "Txt_merma"); }
    QPushButton& ok() { return control<QPushButton>("Compensa", "cmd_ok"); }
};

TEST_F(CompensaDialogTest, opens_without_a_value_to_accept) {
    in_window([this] {
        EXPECT_EQ(window("Compensa")->windowTitle(), "Compensación de Corte");
        EXPECT_EQ(box().text(), "");
        EXPECT_FALSE(ok().isEnabled());
        EXPECT_THAT(tab_order(box()), ElementsAre("Txt_merma", "cmd_cancel"));
        expect_nothing_cut(*window("Compensa"));
        picture(*window("Compensa"), "Compensa");
    });
}

TEST_F(CompensaDialogTest, a_typed_value_moves_the_outline_beside) {
    in_window([this] {
        QTest::keyClicks(&box(), "0.5");
        EXPECT_TRUE(ok().isEnabled());
        QTest::mouseClick(&ok(), Qt::LeftButton);
    });
    ASSERT_TRUE(Forma.Paralela.dimensioned());
    EXPECT_EQ(Forma.Paralela[0].Y, -0.5);
    EXPECT_EQ(shape().front(), (Pto{0, 0}));
}

TEST_F(CompensaDialogTest, a_sign_is_refused_and_the_value_is_gone) {
    in_window([this] {
        QTest::keyClick(&box(), Qt::Key_5);
        QTest::keyClick(&box(), Qt::Key_Minus);
        EXPECT_EQ(box().text(), "0");
        EXPECT_FALSE(ok().isEnabled());
        ASSERT_EQ(dialogs().boxes.size(), 1U);
        EXPECT_EQ(dialogs().boxes[0].text, "Sólo se permiten números!");
    });
}

TEST_F(CompensaDialogTest, cancel_makes_nothing) {
    in_window([this] {
        QTest::keyClick(&box(), Qt::Key_5);
        control<QPushButton>("Compensa", "cmd_cancel").click();
    });
    EXPECT_FALSE(Forma.Paralela.dimensioned());
    EXPECT_THAT(told, ElementsAre("open Compensa", "closed Compensa"));
}

} // namespace

} // namespace velmora::test
