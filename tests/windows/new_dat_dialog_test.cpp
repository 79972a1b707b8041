#include "windows/dialogs_test.h"

#include "support/outline.h"

#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QToolButton>
#include <gmock/gmock.h>

namespace velmora::test {

namespace {

using testing::ElementsAre;

class NewDatDialogTest : public DialogsTest {
  protected:
    void in_window(const std::function<void()>& steps) {
        in_dialog("mnu_newfile", "New_Dat", steps);
    }
    template <class Control>
    Control& part(std::string_view name) {
        return control<Control>("New_Dat", name);
    }
};

TEST_F(NewDatDialogTest, opens_at_the_figures_with_nothing_picked) {
    in_window([this] {
        picture(*window("New_Dat"), "New_Dat");
        EXPECT_TRUE(part<QRadioButton>("SSOpt_predef").isChecked());
        EXPECT_TRUE(part<QGroupBox>("frm_shapes").isEnabled());
        EXPECT_FALSE(part<QGroupBox>("Frm_Create").isEnabled());
        EXPECT_FALSE(part<QPushButton>("cmd_ok").isEnabled());
        EXPECT_FALSE(part<QToolButton>("Picture1(0)").icon().isNull());
        expect_nothing_cut(*window("New_Dat"));
    });
    EXPECT_THAT(told, ElementsAre("open New_Dat", "closed New_Dat"));
}

TEST_F(NewDatDialogTest, tab_runs_through_the_choice_that_is_in_force) {
    in_window([this] {
        EXPECT_THAT(tab_order(part<QRadioButton>("SSOpt_predef")),
                    ElementsAre("SSOpt_predef", "Picture1_0", "Picture1_1", "Picture1_2",
                                "SSOpt_create", "cmd_cancel"));
        part<QRadioButton>("SSOpt_create").click();
        EXPECT_THAT(tab_order(part<QRadioButton>("SSOpt_create")),
                    ElementsAre("SSOpt_create", "Option1", "Option2", "Option3", "Option4",
                                "Option5", "Option6", "Option7", "Option8", "cmd_ok", "cmd_cancel",
                                "SSOpt_predef"));
        picture(*window("New_Dat"), "New_Dat-create");
    });
}

TEST_F(NewDatDialogTest, enter_picks_the_tile_with_the_focus_and_shows_where_it_is) {
    in_window([this] {
        auto& tile = part<QToolButton>("Picture1(1)");
        const QImage before = tile.grab().toImage();
        part<QRadioButton>("SSOpt_predef").setFocus(Qt::TabFocusReason);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        ASSERT_TRUE(tile.hasFocus());
        EXPECT_NE(tile.grab().toImage(), before);
        QTest::keyClick(&tile, Qt::Key_Return);
        EXPECT_EQ(part<QLineEdit>("Txt_Shape").text(), "Triángulo");
        EXPECT_TRUE(tile.isChecked());
        picture(*window("New_Dat"), "New_Dat-focus");
    });
}

TEST_F(NewDatDialogTest, a_clicked_tile_names_its_figure_and_ok_makes_it) {
    in_window([this] {
        QTest::mouseClick(&part<QToolButton>("Picture1(1)"), Qt::LeftButton);
        EXPECT_EQ(part<QLineEdit>("Txt_Shape").text(), "Triángulo");
        EXPECT_TRUE(part<QToolButton>("Picture1(1)").isChecked());
        QTest::mouseClick(&part<QPushButton>("cmd_ok"), Qt::LeftButton);
    });
    EXPECT_EQ(shape(), (Points{{0, 0, 1}, {1, 0}, {1, 1}}));
}

TEST_F(NewDatDialogTest, the_space_bar_picks_the_circle) {
    dialogs().inputs = {"6"};
    in_window([this] {
        QTest::keyClick(&part<QToolButton>("Picture1(2)"), Qt::Key_Space);
        EXPECT_EQ(part<QLineEdit>("Txt_Shape").text(), "Círculo (6 pts.)");
        picture(*window("New_Dat"), "New_Dat-circle");
        part<QPushButton>("cmd_ok").setFocus();
        QTest::keyClick(&part<QPushButton>("cmd_ok"), Qt::Key_Return);
    });
    EXPECT_EQ(shape().size(), 6U);
}

TEST_F(NewDatDialogTest, going_to_the_other_choice_and_back_forgets_the_tile) {
    in_window([this] {
        part<QToolButton>("Picture1(0)").click();
        part<QRadioButton>("SSOpt_create").click();
        EXPECT_TRUE(part<QPushButton>("cmd_ok").isEnabled());
        part<QRadioButton>("SSOpt_predef").click();
        EXPECT_FALSE(part<QPushButton>("cmd_ok").isEnabled());
        EXPECT_FALSE(part<QToolButton>("Picture1(0)").isChecked());
        EXPECT_EQ(part<QLineEdit>("Txt_Shape").text(), "");
    });
}

TEST_F(NewDatDialogTest, a_start_picked_by_hand_is_the_first_point) {
    in_window([this] {
        part<QRadioButton>("SSOpt_create").click();
        part<QRadioButton>("Option1").click();
        part<QRadioButton>("Option8").click();
        part<QPushButton>("cmd_ok").click();
    });
    EXPECT_EQ(shape(), (Points{{0.5, 1, 1}}));
    EXPECT_EQ(session.PtosToInsertMode, True);
}

TEST_F(NewDatDialogTest, esc_leaves_the_document) {
    set_shape({{3, 3}, {4, 4}});
    in_window([this] {
        part<QToolButton>("Picture1(0)").click();
        QTest::keyClick(window("New_Dat"), Qt::Key_Escape);
        settle();
        EXPECT_EQ(window("New_Dat"), nullptr);
    });
    EXPECT_EQ(shape(), (Points{{3, 3}, {4, 4}}));
}

} // namespace

} // namespace velmora::test
