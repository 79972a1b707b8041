// The pointer on the canvas, by real events: dragging a point, moving the shape, adding points by
// hand, Esc.
#include "support/outline.h"
#include "windows/canvas_test.h"

#include "adapters/qt/image_surface.h"
#include "platform/platform.h"

#include <QLabel>
#include <gmock/gmock.h>

namespace velmora::test {

namespace {

using testing::ElementsAre;

/// What of a widget was painted.
class PaintWatch : public QObject {
  public:
    explicit PaintWatch(QWidget& widget) { widget.installEventFilter(this); }
    QRegion painted;

  protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Paint)
            painted += static_cast<QPaintEvent*>(event)->region();
        return false;
    }
};

class PointerTest : public CanvasTest {
  protected:
    QStringList rows() {
        QStringList result;
        const auto& model = *control<QAbstractItemView>("Velmora", "Lst_Coords").model();
        for (int row = 0; row < model.rowCount(); ++row)
            result << model.index(row, 0).data().toString();
        return result;
    }
    void choose(const char* entry) { control<QAction>("Velmora", entry).trigger(); }
    static QImage picture_now() {
        return dynamic_cast<ImageSurface&>(platform().pic).image().copy();
    }
};

TEST_F(PointerTest, a_dragged_point_follows_the_pointer_and_the_list_stays_behind) {
    QTest::mousePress(&pic(), Qt::LeftButton, {}, place(10, 10));
    EXPECT_EQ(session.PtoSel, 2);
    move_to(place(11, 10), Qt::LeftButton);
    EXPECT_EQ(Forma.Pto[2], (Pto{11, 10}));
    move_to(place(12, 9), Qt::LeftButton);
    EXPECT_EQ(Forma.Pto[2], (Pto{12, 9}));
    QTest::mouseRelease(&pic(), Qt::LeftButton, {}, place(12, 9));
    move_to(place(15, 15));
    EXPECT_EQ(shape(), (Points{{0, 0}, {10, 0}, {12, 9}, {0, 10}}));
    EXPECT_EQ(rows().at(2), "2: 10  10");
    EXPECT_EQ(session.DragPto, False);
}

TEST_F(PointerTest, a_drag_paints_the_two_segments_and_nothing_else) {
    session.ShowCoords = False;
    open_shape({{0, 0}, {40, 0}, {40, 40}, {38, 42}, {36, 40}, {0, 40}});
    session.ShowCoords = False;
    QTest::mousePress(&pic(), Qt::LeftButton, {}, place(38, 42));
    move_to(place(38, 43), Qt::LeftButton);
    settle();
    PaintWatch watch(pic());
    move_to(place(39, 43), Qt::LeftButton);
    settle();
    EXPECT_FALSE(watch.painted.isEmpty());
    const QRect segments(place(36, 43), place(40, 40));
    EXPECT_TRUE(segments.adjusted(-2, -2, 2, 2).contains(watch.painted.boundingRect()));
    QTest::mouseRelease(&pic(), Qt::LeftButton, {}, place(39, 43));
}

TEST_F(PointerTest, a_press_on_empty_canvas_keeps_the_selection_and_drags_nothing) {
    session.PtoSel = 1;
    QTest::mousePress(&pic(), Qt::LeftButton, {}, place(5, 5));
    move_to(place(6, 6), Qt::LeftButton);
    QTest::mouseRelease(&pic(), Qt::LeftButton, {}, place(6, 6));
    EXPECT_EQ(session.PtoSel, 1);
    EXPECT_EQ(shape(), (Points{{0, 0}, {10, 0}, {10, 10}, {0, 10}}));
}

TEST_F(PointerTest, the_shape_goes_where_the_pointer_is_let_go) {
    session.PtoSel = 2;
    choose("Move_Shape");
    EXPECT_EQ(pic().cursor().shape(), Qt::UpArrowCursor);
    move_to(place(15, 15));
    EXPECT_EQ(shape().at(2), (Pto{10, 10})) << "it waits for the release";
    QTest::mouseClick(&pic(), Qt::LeftButton, {}, place(20, 30));
    EXPECT_EQ(shape(), (Points{{10, 20}, {20, 20}, {20, 30}, {10, 30}}));
    EXPECT_EQ(session.PtoSel, 2) << "no point is picked while the shape waits";
    EXPECT_EQ(rows().at(2), "2: 20  30");
    EXPECT_EQ(pic().cursor().shape(), Qt::ArrowCursor);
    EXPECT_EQ(session.MoveShapeMode, False);
}

TEST_F(PointerTest, esc_leaves_the_shape_where_it_is) {
    session.PtoSel = 2;
    choose("Move_Shape");
    EXPECT_NE(session.Velmora.StatusBar1, "");
    QTest::keyClick(&pic(), Qt::Key_Escape);
    EXPECT_EQ(session.Velmora.StatusBar1, "");
    EXPECT_EQ(pic().cursor().shape(), Qt::ArrowCursor);
    QTest::mouseClick(&pic(), Qt::LeftButton, {}, place(20, 30));
    EXPECT_EQ(shape(), (Points{{0, 0}, {10, 0}, {10, 10}, {0, 10}}));
}

TEST_F(PointerTest, clicks_add_points_before_the_selected_one_until_esc) {
    session.PtoSel = 2;
    choose("Insert_N_Ptos");
    QTest::mouseClick(&pic(), Qt::LeftButton, {}, place(12, 3));
    QTest::keyPress(&pic(), Qt::Key_Control);
    QTest::mouseClick(&pic(), Qt::LeftButton, Qt::ControlModifier, place(12, 7));
    QTest::keyRelease(&pic(), Qt::Key_Control);
    EXPECT_EQ(session.TotalPtos, 6);
    QTest::keyClick(&pic(), Qt::Key_Escape);
    EXPECT_EQ(shape(), (Points{{0, 0, 0, 1}, {10, 0}, {12, 3}, {12, 7, 1}, {10, 10}, {0, 10}}));
    EXPECT_EQ(session.PtoSel, 1);
    EXPECT_EQ(session.PtosToInsertMode, False);
}

TEST_F(PointerTest, a_right_click_takes_the_last_point_back_and_stops_at_three) {
    session.PtoSel = 0;
    choose("Insert_N_Ptos");
    QTest::mouseClick(&pic(), Qt::LeftButton, {}, place(12, 3));
    QTest::mouseClick(&pic(), Qt::RightButton, {}, place(12, 3));
    EXPECT_EQ(shape(), (Points{{0, 0, 0, 1}, {10, 0}, {10, 10}, {0, 10}}));
    QTest::mouseClick(&pic(), Qt::RightButton, {}, place(12, 3));
    EXPECT_TRUE(dialogs().boxes.empty());
    QTest::mouseClick(&pic(), Qt::RightButton, {}, place(12, 3));
    ASSERT_EQ(dialogs().boxes.size(), 1U);
    EXPECT_EQ(dialogs().boxes[0].text, "No se pueden eliminar más puntos!");
    EXPECT_EQ(shape().size(), 3U);
}

TEST_F(PointerTest, the_rubber_band_follows_the_pointer_without_a_trail) {
    session.PtoSel = 2;
    choose("Insert_N_Ptos");
    move_to(place(14, 4));
    const QImage here = picture_now();
    move_to(place(17, 8));
    EXPECT_NE(picture_now(), here);
    move_to(place(14, 4));
    EXPECT_EQ(picture_now(), here);
}

TEST_F(PointerTest, the_rubber_band_paints_its_two_segments_alone) {
    open_shape({{0, 0}, {40, 0}, {40, 40}, {38, 42}, {36, 40}, {0, 40}});
    session.PtoSel = 3;
    choose("Insert_N_Ptos");
    move_to(place(39, 44));
    settle();
    PaintWatch watch(pic());
    move_to(place(41, 45));
    settle();
    EXPECT_FALSE(watch.painted.isEmpty());
    const QRect band(place(38, 45), place(41, 42));
    EXPECT_TRUE(band.adjusted(-2, -2, 2, 2).contains(watch.painted.boundingRect()));
}

} // namespace

} // namespace velmora::test
