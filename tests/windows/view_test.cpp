// The view moved and fitted by hand, by real events: wheel, middle button, Space, keys, menu.
#include "support/outline.h"
#include "windows/canvas_test.h"

#include "platform/platform.h"
#include "ui/canvas_scroll.h"
#include "ui/ruler.h"

#include <QAction>
#include <QLabel>
#include <QScrollBar>
#include <QWheelEvent>

namespace velmora::test {

namespace {

class ViewTest : public CanvasTest {
  protected:
    CanvasScroll& scroll() { return control<CanvasScroll>("Velmora", "SSScroll"); }
    QPoint place_seen() { return scroll().place(); }
    QSize seen() { return scroll().viewport()->size(); }
    /// The pixel of pic in the middle of what is seen.
    QPoint middle() { return place_seen() + QPoint(seen().width() / 2, seen().height() / 2); }
    /// A pixel of pic as a place of the window.
    QPoint in_window(QPoint at) { return pic().mapTo(window("Velmora"), at); }
    void turn(QPoint at, int eighths, Qt::KeyboardModifiers keys = Qt::ControlModifier) {
        send_turn(at, eighths, keys);
        settle();
    }
    void send_turn(QPoint at, int eighths, Qt::KeyboardModifiers keys) {
        const QPoint on_screen = pic().mapToGlobal(at);
        QWidget& viewport = *scroll().viewport(); // where the canvas lets it through to
        QWheelEvent event(viewport.mapFromGlobal(on_screen), on_screen, {}, {0, eighths},
                          Qt::NoButton, keys, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&viewport, &event);
    }
    /// Presses at a pixel of pic, goes `way` on the screen, lets go.
    void drag(Qt::MouseButton button, QPoint from, QPoint way) {
        send(QEvent::MouseButtonPress, from, button);
        const QPoint to = pic().mapToGlobal(from) + way;
        QMouseEvent move(QEvent::MouseMove, pic().mapFromGlobal(to), to, Qt::NoButton, button,
                         Qt::NoModifier);
        QCoreApplication::sendEvent(&pic(), &move);
        QMouseEvent release(QEvent::MouseButtonRelease, pic().mapFromGlobal(to), to, button,
                            Qt::NoButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&pic(), &release);
        settle();
    }
    void send(QEvent::Type type, QPoint at, Qt::MouseButton button) {
        QMouseEvent event(type, at, pic().mapToGlobal(at), button,
                          type == QEvent::MouseButtonRelease ? Qt::NoButton : button,
                          Qt::NoModifier);
        QCoreApplication::sendEvent(&pic(), &event);
    }
    void double_click_on_the_wheel(QPoint at) {
        send(QEvent::MouseButtonPress, at, Qt::MiddleButton);
        send(QEvent::MouseButtonRelease, at, Qt::MiddleButton);
        send(QEvent::MouseButtonDblClick, at, Qt::MiddleButton);
        send(QEvent::MouseButtonRelease, at, Qt::MiddleButton);
        settle();
    }
    void choose(const char* entry) { control<QAction>("Velmora", entry).trigger(); }
    void expect_fitted() {
        const QPoint lower_left(30, 1970);
        const int side = static_cast<int>(session.ZoomFactor * 10);
        const QPoint shape_middle = lower_left + QPoint(side / 2, -side / 2);
        EXPECT_LE((middle() - shape_middle).manhattanLength(), 2);
        const int room = std::min(seen().width(), seen().height()) - 60;
        EXPECT_LE(side, room);
        EXPECT_GE(side, room - room / 500 - 2);
        EXPECT_EQ(session.winoptions.Txt_zoom, CStr(session.ZoomFactor));
    }
    QLabel& position() { return control<QLabel>("Velmora", "lbl_position"); }
    Ruler& ruler(const char* name) { return *window("Velmora")->findChild<Ruler*>(name); }
    /// The ruler's pixels along a line beside the canvas, dark ones as marks.
    std::vector<int> long_marks(Ruler& ruler, bool upright) {
        const QImage image = ruler.grab().toImage();
        std::vector<int> marks;
        const int length = upright ? seen().height() : seen().width();
        for (int i = 0; i < length; ++i)
            if (image.pixelColor(upright ? QPoint(1, i) : QPoint(i, 1)).lightness() < 100)
                marks.push_back(i);
        return marks;
    }
    static std::string CStr(double number) { return QString::number(number).toStdString(); }
};

TEST_F(ViewTest, ctrl_0_the_menu_the_key_of_the_bar_and_the_wheel_fit_the_shape) {
    const std::vector<std::function<void()>> ways = {
        [this] { QTest::keyClick(&pic(), Qt::Key_0, Qt::ControlModifier); },
        [this] { choose("mnu_fit_shape"); },
        [this] { choose("K_FIT"); },
        [this] { double_click_on_the_wheel(place(3, 3)); },
    };
    for (const auto& fit : ways) {
        session.ZoomFactor = 10;
        fit();
        settle();
        EXPECT_NE(session.ZoomFactor, 10);
        expect_fitted();
    }
}

TEST_F(ViewTest, the_fitted_shape_stays_in_the_middle_of_another_size) {
    choose("mnu_fit_shape");
    settle();
    const QPoint before = middle();
    window("Velmora")->resize(window("Velmora")->size() - QSize(80, 120));
    settle();
    EXPECT_LE((middle() - before).manhattanLength(), 2);
}

TEST_F(ViewTest, the_next_zoom_of_the_ladder_is_at_the_corner_again) {
    choose("mnu_fit_shape");
    settle();
    choose("mnu_zoom_up");
    settle();
    EXPECT_EQ(place_seen(), QPoint(0, 2000 - seen().height()));
    EXPECT_EQ(scroll().horizontalScrollBar()->minimum(), 0);
    EXPECT_EQ(scroll().verticalScrollBar()->maximum(), 2000 - seen().height());
}

TEST_F(ViewTest, ctrl_9_brings_the_selected_point_to_the_middle) {
    open_shape({{0, 0}, {50, 0}, {50, 50}, {0, 50}});
    session.PtoSel = 2;
    QTest::keyClick(&pic(), Qt::Key_9, Qt::ControlModifier);
    settle();
    const int far = static_cast<int>(session.ZoomFactor * 50);
    EXPECT_LE((middle() - QPoint(30 + far, 1970 - far)).manhattanLength(), 2);
}

TEST_F(ViewTest, ctrl_and_the_wheel_zoom_round_the_pointer) {
    const QPoint before = in_window(place(10, 10));
    turn(place(10, 10), 120);
    EXPECT_EQ(session.ZoomFactor, 11);
    EXPECT_LE((in_window({30 + 110, 1970 - 110}) - before).manhattanLength(), 1);
    turn({30 + 110, 1970 - 110}, -120);
    EXPECT_EQ(session.ZoomFactor, 10);
    EXPECT_LE((in_window(place(10, 10)) - before).manhattanLength(), 2);
}

TEST_F(ViewTest, the_canvas_can_stand_further_in_than_its_corner_to_keep_the_place) {
    const QPoint before = in_window(place(10, 10));
    turn(place(10, 10), -240);
    EXPECT_EQ(session.ZoomFactor, 8.26446);
    EXPECT_LE((in_window({30 + 83, 1970 - 83}) - before).manhattanLength(), 2);
    EXPECT_LT(place_seen().x(), 0);
}

TEST_F(ViewTest, small_turns_add_up_to_steps) {
    for (int i = 0; i < 3; ++i)
        turn(place(10, 10), 40);
    EXPECT_EQ(session.ZoomFactor, 11);
    turn(place(10, 10), 60);
    EXPECT_EQ(session.ZoomFactor, 11);
}

TEST_F(ViewTest, the_steps_of_one_turn_cost_one_repaint) {
    const std::uint64_t moves = session.Velmora.SSScroll_moves;
    for (int i = 0; i < 4; ++i)
        send_turn(place(10, 10), 120, Qt::ControlModifier);
    settle();
    EXPECT_EQ(session.ZoomFactor, 14.641);
    EXPECT_EQ(session.Velmora.SSScroll_moves, moves + 2) << "of the layout, and round the pointer";
}

TEST_F(ViewTest, the_wheel_alone_scrolls) {
    const QPoint before = place_seen();
    turn(place(5, 5), 120, Qt::NoModifier);
    EXPECT_EQ(session.ZoomFactor, 10);
    EXPECT_LT(place_seen().y(), before.y());
}

TEST_F(ViewTest, the_middle_button_takes_the_view_along) {
    const QPoint before = place_seen();
    drag(Qt::MiddleButton, place(5, 5), {-40, 25});
    EXPECT_EQ(place_seen(), before + QPoint(40, -25));
    EXPECT_EQ(session.ZoomFactor, 10);
}

TEST_F(ViewTest, a_press_of_the_middle_button_still_picks_a_point) {
    session.PtoSel = 0;
    send(QEvent::MouseButtonPress, place(10, 10), Qt::MiddleButton);
    EXPECT_EQ(session.PtoSel, 2);
    EXPECT_EQ(session.DragPto, False);
    send(QEvent::MouseButtonRelease, place(10, 10), Qt::MiddleButton);
}

TEST_F(ViewTest, a_dragged_view_stays_while_points_are_put_in) {
    session.PtoSel = 2;
    choose("Insert_N_Ptos");
    settle();
    const QPoint before = place_seen();
    drag(Qt::MiddleButton, place(5, 5), {-40, 25});
    EXPECT_EQ(place_seen(), before + QPoint(40, -25));
    EXPECT_EQ(session.TotalPtos, 4);
}

TEST_F(ViewTest, the_shape_on_its_way_goes_where_the_middle_button_is_let_go) {
    session.PtoSel = 0;
    choose("Move_Shape");
    settle();
    const QPoint before = place_seen();
    drag(Qt::MiddleButton, place(5, 5), {40, 0});
    EXPECT_EQ(session.MoveShapeMode, False);
    EXPECT_EQ(shape().at(0), (Pto{9, 5}));
    EXPECT_EQ(place_seen(), before);
}

TEST_F(ViewTest, space_and_the_left_button_take_the_view_along_and_touch_nothing) {
    for (const char* mode : {"", "Insert_N_Ptos", "Move_Shape"}) {
        SCOPED_TRACE(mode);
        session.PtoSel = 2;
        open_shape({{0, 0}, {10, 0}, {10, 10}, {0, 10}});
        if (*mode != '\0')
            choose(mode);
        settle();
        const auto points = shape();
        const QPoint before = place_seen();
        QTest::keyPress(&pic(), Qt::Key_Space);
        EXPECT_EQ(pic().cursor().shape(), Qt::OpenHandCursor);
        drag(Qt::LeftButton, place(10, 10), {-30, 20});
        EXPECT_EQ(place_seen(), before + QPoint(30, -20));
        QTest::keyRelease(&pic(), Qt::Key_Space);
        EXPECT_NE(pic().cursor().shape(), Qt::OpenHandCursor);
        EXPECT_EQ(shape(), points);
        EXPECT_EQ(session.DragPto, False);
        QTest::keyClick(&pic(), Qt::Key_Escape);
    }
}

TEST_F(ViewTest, a_button_let_go_elsewhere_is_let_go) {
    send(QEvent::MouseButtonPress, place(5, 5), Qt::MiddleButton);
    move_to(place(7, 5), Qt::MiddleButton);
    const QPoint before = place_seen();
    move_to(place(12, 12));
    settle();
    EXPECT_EQ(place_seen(), before);
}

TEST_F(ViewTest, space_let_go_elsewhere_is_let_go) {
    session.PtoSel = 2;
    QTest::keyPress(&pic(), Qt::Key_Space);
    control<QWidget>("Velmora", "TxtDescDat").setFocus();
    settle();
    pic().setFocus();
    QTest::mousePress(&pic(), Qt::LeftButton, {}, place(10, 10));
    EXPECT_EQ(session.DragPto, True);
    QTest::mouseRelease(&pic(), Qt::LeftButton, {}, place(10, 10));
}

// 10 pixels a unit: a number each 10 units, the origin 30 pixels from the corner.
TEST_F(ViewTest, the_rulers_measure_in_the_units_of_the_shape) {
    std::vector<int> along;
    for (int at = 30; at < seen().width(); at += 100)
        along.push_back(at);
    EXPECT_EQ(long_marks(ruler("ruler_along"), false), along);
    std::vector<int> upright;
    for (int at = seen().height() - 30; at >= 0; at -= 100)
        upright.insert(upright.begin(), at);
    EXPECT_EQ(long_marks(ruler("ruler_upright"), true), upright);
    EXPECT_EQ(ruler("ruler_along").mapTo(window("Velmora"), QPoint()).x(),
              scroll().viewport()->mapTo(window("Velmora"), QPoint()).x());
    EXPECT_EQ(ruler("ruler_upright").mapTo(window("Velmora"), QPoint()).y(),
              scroll().viewport()->mapTo(window("Velmora"), QPoint()).y());
}

TEST_F(ViewTest, the_rulers_go_with_the_view) {
    drag(Qt::MiddleButton, place(5, 5), {-40, 0});
    EXPECT_EQ(long_marks(ruler("ruler_along"), false).front(), 90) << "of 10; 0 is gone";
    choose("mnu_zoom_up");
    settle();
    EXPECT_EQ(long_marks(ruler("ruler_along"), false).at(1), 130) << "of 5";
}

TEST_F(ViewTest, the_position_of_the_pointer_is_told_while_it_is_over_the_canvas) {
    EXPECT_EQ(position().text(), "");
    move_to(place(7, 3));
    EXPECT_EQ(position().text(), "X 7  Y 3");
    choose("mnu_zoom_up");
    settle();
    EXPECT_EQ(position().text(), "X 3.5  Y 1.5");
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(&pic(), &leave);
    EXPECT_EQ(position().text(), "");
}

TEST_F(ViewTest, rulers_and_position_are_turned_off_and_stay_off) {
    for (const auto& [entry, key] :
         {std::pair("mnu_rulers", "rulers"), std::pair("mnu_position", "position")}) {
        auto& action = control<QAction>("Velmora", entry);
        EXPECT_TRUE(action.isChecked()) << entry;
        action.trigger();
        EXPECT_FALSE(action.isChecked()) << entry;
        EXPECT_EQ(settings().get("Values", key), "0");
    }
    EXPECT_FALSE(ruler("ruler_along").isVisible());
    EXPECT_FALSE(ruler("ruler_upright").isVisible());
    EXPECT_FALSE(position().isVisible());
    const auto stored = settings().values;
    rebuild();
    settings().values = stored;
    start_program();
    EXPECT_FALSE(ruler("ruler_along").isVisible());
    EXPECT_FALSE(position().isVisible());
    choose("mnu_rulers");
    choose("mnu_position");
    EXPECT_TRUE(ruler("ruler_along").isVisible());
    EXPECT_TRUE(position().isVisible());
    EXPECT_EQ(settings().get("Values", "rulers"), "1");
}

} // namespace

} // namespace velmora::test
