// The view fitted by hand, by real events: keys, menu, bar, the wheel as a button.
#include "support/outline.h"
#include "windows/canvas_test.h"

#include "platform/platform.h"
#include "ui/canvas_scroll.h"

#include <QAction>
#include <QScrollBar>

namespace velmora::test {

namespace {

class ViewTest : public CanvasTest {
  protected:
    CanvasScroll& scroll() { return control<CanvasScroll>("Velmora", "SSScroll"); }
    QPoint place_seen() { return scroll().place(); }
    QSize seen() { return scroll().viewport()->size(); }
    /// The pixel of pic in the middle of what is seen.
    QPoint middle() { return place_seen() + QPoint(seen().width() / 2, seen().height() / 2); }
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

TEST_F(ViewTest, a_press_of_the_middle_button_still_picks_a_point) {
    session.PtoSel = 0;
    send(QEvent::MouseButtonPress, place(10, 10), Qt::MiddleButton);
    EXPECT_EQ(session.PtoSel, 2);
    EXPECT_EQ(session.DragPto, False);
    send(QEvent::MouseButtonRelease, place(10, 10), Qt::MiddleButton);
}

} // namespace

} // namespace velmora::test
