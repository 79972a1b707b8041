// The menu of a point: opened by a right click, each entry chosen in it with the pointer.
#include "support/outline.h"
#include "windows/canvas_test.h"

#include <QMenu>
#include <QTimer>
#include <functional>
#include <gmock/gmock.h>

namespace velmora::test {

namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;

class PointMenuTest : public CanvasTest {
  protected:
    QMenu& menu() { return *window("Velmora")->findChild<QMenu*>("OPT_PTO"); }
    /// A right click on the point (10, 10), number 2, then a click on the entry.
    void choose(const char* entry) {
        QTest::mouseClick(&pic(), Qt::RightButton, {}, place(10, 10));
        ASSERT_TRUE(menu().isVisible());
        auto& action = control<QAction>("Velmora", entry);
        ASSERT_TRUE(action.isEnabled()) << entry;
        QTest::mouseClick(&menu(), Qt::LeftButton, {}, menu().actionGeometry(&action).center());
        settle();
        EXPECT_FALSE(menu().isVisible());
    }
};

TEST_F(PointMenuTest, holds_its_entries_in_order) {
    QStringList names;
    for (const QAction* action : menu().actions())
        if (action->isVisible())
            names << (action->isSeparator() ? "-" : action->objectName());
    EXPECT_THAT(names,
                ElementsAreArray({"-", "Delete_Pto", "Delete_N_Ptos", "-", "Insert_Pto",
                                  "insert_ini", "Insert_N_Ptos", "-", "Delete_Pto_Sinc",
                                  "Insert_Pto_Sinc", "Pts_To_Next_Sinc", "-", "Set_CutStart",
                                  "Set_00", "set_10", "set_x0", "-", "Move_Shape", "Rotate"}));
}

TEST_F(PointMenuTest, a_right_click_beside_the_points_opens_nothing) {
    QTest::mouseClick(&pic(), Qt::RightButton, {}, place(5, 5));
    EXPECT_FALSE(menu().isVisible());
}

TEST_F(PointMenuTest, esc_closes_it_and_keeps_the_new_selection) {
    QTest::mouseClick(&pic(), Qt::RightButton, {}, place(10, 10));
    QTest::keyClick(&menu(), Qt::Key_Escape);
    EXPECT_FALSE(menu().isVisible());
    EXPECT_EQ(session.PtoSel, 2);
    EXPECT_EQ(shape().size(), 4U);
}

TEST_F(PointMenuTest, the_menu_key_opens_it_for_the_selected_point) {
    session.PtoSel = 2;
    QContextMenuEvent key(QContextMenuEvent::Keyboard, {}, {});
    QCoreApplication::sendEvent(&pic(), &key);
    EXPECT_TRUE(menu().isVisible());
    EXPECT_FALSE(control<QAction>("Velmora", "Pts_To_Next_Sinc").isEnabled());
    menu().close();
    session.PtosToInsertMode = True;
    QCoreApplication::sendEvent(&pic(), &key);
    EXPECT_FALSE(menu().isVisible());
}

TEST_F(PointMenuTest, delete_pto) {
    choose("Delete_Pto");
    EXPECT_EQ(shape(), (Points{{0, 0}, {10, 0}, {0, 10}}));
    EXPECT_EQ(session.PtoSel, 1);
}

TEST_F(PointMenuTest, delete_n_ptos_opens_its_window) {
    bool opened = false;
    QTimer::singleShot(0, [&] {
        opened = window("del_Npto") != nullptr;
        if (opened)
            window("del_Npto")->close();
    });
    choose("Delete_N_Ptos");
    EXPECT_TRUE(opened);
}

TEST_F(PointMenuTest, insert_pto) {
    choose("Insert_Pto");
    EXPECT_EQ(shape(), (Points{{0, 0}, {10, 0}, {10, 5}, {10, 10}, {0, 10}}));
    EXPECT_EQ(session.PtoSel, 2);
}

TEST_F(PointMenuTest, insert_ini) {
    choose("insert_ini");
    EXPECT_EQ(shape(),
              (Points{{1, 0, 1}, {10, 0}, {10, 10}, {0, 10}, {0, 0}, {10, 0}, {10, 10}, {10, 0}}));
}

TEST_F(PointMenuTest, insert_n_ptos_turns_the_point_to_the_front) {
    choose("Insert_N_Ptos");
    EXPECT_EQ(session.PtosToInsertMode, True);
    EXPECT_EQ(shape(), (Points{{10, 10}, {0, 10}, {0, 0, 0, 1}, {10, 0}}));
}

TEST_F(PointMenuTest, insert_and_delete_pto_sinc) {
    choose("Insert_Pto_Sinc");
    EXPECT_EQ(Forma.Pto[2].Sinc, 1);
    EXPECT_EQ(session.TotalSinc, 1);
    choose("Delete_Pto_Sinc");
    EXPECT_EQ(Forma.Pto[2].Sinc, 0);
    EXPECT_EQ(session.TotalSinc, 0);
}

TEST_F(PointMenuTest, pts_to_next_sinc_tells_on_a_sync_point_alone) {
    QTest::mouseClick(&pic(), Qt::RightButton, {}, place(10, 10));
    EXPECT_FALSE(control<QAction>("Velmora", "Pts_To_Next_Sinc").isEnabled());
    menu().close();
    Forma.Pto[2].Sinc = 1;
    choose("Pts_To_Next_Sinc");
    ASSERT_EQ(dialogs().boxes.size(), 1U);
    EXPECT_EQ(dialogs().boxes[0].text,
              "Número de puntos hasta el siguiente punto de sincronismo: 3");
}

TEST_F(PointMenuTest, set_cut_start) {
    choose("Set_CutStart");
    EXPECT_EQ(shape(), (Points{{10, 10}, {0, 10}, {0, 0}, {10, 0}}));
}

TEST_F(PointMenuTest, set00) {
    choose("Set_00");
    EXPECT_EQ(shape(), (Points{{-10, -10}, {0, -10}, {0, 0}, {-10, 0}}));
}

TEST_F(PointMenuTest, set10) {
    choose("set_10");
    EXPECT_EQ(shape(), (Points{{0, 0}, {10, 0}, {1, 0}, {0, 10}}));
}

TEST_F(PointMenuTest, set_X0) {
    choose("set_x0");
    EXPECT_EQ(shape(), (Points{{0, 0}, {10, 0}, {10, 0}, {0, 10}}));
}

TEST_F(PointMenuTest, move_shape_waits_for_the_pointer) {
    choose("Move_Shape");
    EXPECT_EQ(session.MoveShapeMode, True);
    EXPECT_EQ(pic().cursor().shape(), Qt::UpArrowCursor);
}

TEST_F(PointMenuTest, rotate_asks_for_the_angle) {
    dialogs().inputs = {"180"};
    choose("Rotate");
    // Straight below the pivot counts as beside it, on purpose.
    EXPECT_EQ(shape(), (Points{{20, 20}, {0, 10}, {10, 10}, {20, 10}}));
}

} // namespace

} // namespace velmora::test
