#include "windows/dialogs_test.h"

#include "support/outline.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <gmock/gmock.h>

namespace velmora::test {

namespace {

using testing::ElementsAre;

class MultPtosDialogTest : public DialogsTest {
  protected:
    void in_window(const std::function<void()>& steps) {
        set_shape({{0, 0}, {4, 0}, {4, 4}});
        in_dialog("Mult_Points_Shape", "Mult_Ptos", steps);
    }
    QComboBox& factor() { return control<QComboBox>("Mult_Ptos", "Combo1"); }
    QPushButton& ok() { return control<QPushButton>("Mult_Ptos", "cmd_ok"); }
    void type_factor(const QString& digits) {
        factor().lineEdit()->selectAll();
        QTest::keyClicks(&factor(), digits);
    }
};

TEST_F(MultPtosDialogTest, opens_with_the_count_and_the_factor2) {
    in_window([this] {
        EXPECT_EQ(control<QLabel>("Mult_Ptos", "Lbl_NPoints").text(), "Nº de puntos actual : 3");
        EXPECT_EQ(factor().currentText(), "2");
        EXPECT_TRUE(ok().isEnabled());
        EXPECT_THAT(tab_order(factor()), ElementsAre("Combo1", "cmd_ok", "cmd_cancel"));
        expect_nothing_cut(*window("Mult_Ptos"));
        picture(*window("Mult_Ptos"), "Mult_Ptos");
    });
}

TEST_F(MultPtosDialogTest, keeps_its_design_texts_in_every_language) {
    session.Idioma = "I";
    in_window([this] {
        EXPECT_EQ(window("Mult_Ptos")->windowTitle(), "Multiplicar Puntos de la Forma");
        EXPECT_EQ(ok().text(), "&Aceptar");
    });
    EXPECT_THAT(told, ElementsAre("open Mult_Ptos", "closed Mult_Ptos"));
}

TEST_F(MultPtosDialogTest, opens_again_over_its_own_table) {
    in_window([] {});
    in_window([this] {
        EXPECT_EQ(control<QLabel>("Mult_Ptos", "Lbl_NPoints").text(), "Nº de puntos actual : 3");
    });
}

TEST_F(MultPtosDialogTest, a_typed_factor_multiplies) {
    in_window([this] {
        type_factor("4");
        EXPECT_EQ(session.Mult_Ptos.Combo1, "4");
        ok().click();
    });
    EXPECT_EQ(shape().size(), 12U);
}

TEST_F(MultPtosDialogTest, a_typed_factor_is_not_completed_to_an_entry_of_the_list) {
    in_window([this] {
        type_factor("1");
        EXPECT_EQ(factor().currentText(), "1");
        EXPECT_EQ(session.Mult_Ptos.Combo1, "1");
        ok().click();
    });
    EXPECT_EQ(shape(), (Points{{0, 0}, {4, 0}, {4, 4}}));
}

TEST_F(MultPtosDialogTest, a_factor_without_a_whole_part_leaves_the_window_open) {
    in_window([this] {
        factor().lineEdit()->setText("0.4"); // the digits alone pass a 0 on the way
        ok().click();
        EXPECT_NE(window("Mult_Ptos"), nullptr);
    });
    EXPECT_EQ(shape().size(), 3U);
    EXPECT_THAT(told, ElementsAre("open Mult_Ptos", "closed Mult_Ptos"));
}

TEST_F(MultPtosDialogTest, enter_in_the_list_is_ok) {
    in_window([this] {
        type_factor("3");
        QTest::keyClick(&factor(), Qt::Key_Return);
        settle();
        EXPECT_EQ(window("Mult_Ptos"), nullptr);
    });
    EXPECT_EQ(shape().size(), 9U);
}

TEST_F(MultPtosDialogTest, a_factor_beyond1000_clears_the_box) {
    in_window([this] {
        type_factor("1000");
        EXPECT_TRUE(ok().isEnabled());
        type_factor("1001");
        EXPECT_EQ(factor().currentText(), " ");
        EXPECT_FALSE(ok().isEnabled());
    });
}

TEST_F(MultPtosDialogTest, an_entry_of_the_list_multiplies) {
    in_window([this] {
        QTest::keyClick(&factor(), Qt::Key_Down);
        EXPECT_EQ(factor().currentText(), "3");
        ok().click();
    });
    EXPECT_EQ(shape().size(), 9U);
}

TEST_F(MultPtosDialogTest, esc_leaves_the_shape) {
    in_window([this] {
        QTest::keyClick(window("Mult_Ptos"), Qt::Key_Escape);
        settle();
        EXPECT_EQ(window("Mult_Ptos"), nullptr);
    });
    EXPECT_EQ(shape().size(), 3U);
}

} // namespace

} // namespace velmora::test
