// The main window's list, canvas, label, status and scroll bars.
#include "support/outline.h"
#include "support/places.h"
#include "windows/canvas_test.h"

#include "ui/coord_list_view.h"

#include <QAction>
#include <QDropEvent>
#include <QFile>
#include <QLabel>
#include <QMenu>
#include <QMimeData>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QUrl>
#include <QWindow>
#include <QtTest>
#include <gmock/gmock.h>

namespace velmora::test {

namespace {

class MainWindowTest : public CanvasTest {
  protected:
    CoordListView& list() { return control<CoordListView>("Velmora", "Lst_Coords"); }
    QScrollArea& scroll() { return control<QScrollArea>("Velmora", "SSScroll"); }
    QString row(int place) { return list().model()->index(place, 0).data().toString(); }
    void click_row(int place) {
        const QModelIndex index = list().model()->index(place, 0);
        list().scrollTo(index);
        QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, list().visualRect(index).center());
    }
};

TEST_F(MainWindowTest, the_list_shows_a_row_for_each_point) {
    ASSERT_EQ(list().model()->rowCount(), 4);
    EXPECT_EQ(row(1), "1: 10  0");
    EXPECT_EQ(row(3), "3: 0  10");
}

TEST_F(MainWindowTest, a_click_on_a_row_selects_its_point_and_gives_the_canvas_the_focus) {
    list().setFocus();
    click_row(2);
    EXPECT_EQ(session.PtoSel, 2);
    EXPECT_TRUE(pic().hasFocus());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_N);
    EXPECT_EQ(session.PtoSel, 3);
}

TEST_F(MainWindowTest, keys_that_move_in_the_list_select_their_points_and_stay_in_it) {
    click_row(0);
    list().setFocus();
    struct Step {
        Qt::Key key;
        int row;
    };
    for (const auto& [key, row] :
         {Step{Qt::Key_Down, 1}, Step{Qt::Key_Down, 2}, Step{Qt::Key_Up, 1}, Step{Qt::Key_End, 3},
          Step{Qt::Key_Home, 0}, Step{Qt::Key_PageDown, 3}, Step{Qt::Key_PageUp, 0}}) {
        QTest::keyClick(QApplication::focusWidget(), key);
        EXPECT_EQ(list().currentIndex().row(), row) << key;
        EXPECT_EQ(session.PtoSel, row) << key;
        EXPECT_TRUE(list().hasFocus()) << key;
    }
    EXPECT_EQ(shape(), (Points{{0, 0}, {10, 0}, {10, 10}, {0, 10}}));
}

TEST_F(MainWindowTest, a_key_that_moves_in_the_list_shows_the_selection) {
    click_row(0);
    list().setFocus();
    const QImage before = pic().grab().toImage();
    QTest::keyClick(&list(), Qt::Key_Down);
    EXPECT_NE(pic().grab().toImage(), before);
}

// The row has the list's mark from the arrival of the focus on, without being chosen.
TEST_F(MainWindowTest, the_first_key_in_the_list_can_choose_the_first_row) {
    session.PtoSel = 2;
    list().setFocus();
    EXPECT_EQ(session.PtoSel, 2);
    QTest::keyClick(&list(), Qt::Key_Home);
    EXPECT_EQ(session.PtoSel, 0);
    EXPECT_TRUE(list().hasFocus());
}

TEST_F(MainWindowTest, enter_on_a_row_is_a_click_on_it) {
    for (const auto key : {Qt::Key_Return, Qt::Key_Enter}) {
        click_row(1);
        list().setFocus();
        session.PtoSel = 3;
        QTest::keyClick(&list(), key);
        EXPECT_EQ(session.PtoSel, 1);
        EXPECT_TRUE(pic().hasFocus());
    }
}

TEST_F(MainWindowTest, a_key_on_a_stale_row_refreshes_the_list_and_keeps_the_selection) {
    click_row(2);
    list().setFocus();
    Forma.Pto.redim_keep(2);
    session.PtoSel = 1;
    QTest::keyClick(&list(), Qt::Key_Down);
    EXPECT_EQ(session.PtoSel, 1);
    EXPECT_EQ(list().model()->rowCount(), 3);
    EXPECT_TRUE(list().hasFocus());
}

TEST_F(MainWindowTest, a_stale_row_refreshes_the_list_and_keeps_the_selection) {
    Forma.Pto.redim_keep(2);
    session.PtoSel = 1;
    click_row(3);
    EXPECT_EQ(session.PtoSel, 1);
    EXPECT_EQ(list().model()->rowCount(), 3);
}

TEST_F(MainWindowTest, a_list_that_shrank_under_the_view_is_not_read_beyond_its_end) {
    session.Velmora.Lst_Coords.clear(); // a handler runs, the view does not know yet
    EXPECT_EQ(list().model()->rowCount(), 4);
    EXPECT_EQ(row(3), "");
}

TEST_F(MainWindowTest, the_end_key_goes_to_the_last_of_many_rows) {
    Forma.Pto.redim(99999);
    windows().run([] { Carga_List_Coords("NEWFILE"); });
    settle();
    QTest::keyClick(&list(), Qt::Key_End);
    EXPECT_EQ(list().currentIndex().row(), 99999);
    EXPECT_TRUE(list().viewport()->rect().intersects(list().visualRect(list().currentIndex())));
    EXPECT_EQ(list().indexAt(list().visualRect(list().currentIndex()).center()),
              list().currentIndex());
}

TEST_F(MainWindowTest, the_canvas_is2000_pixels_a_side) {
    EXPECT_EQ(pic().size(), QSize(2000, 2000));
}

TEST_F(MainWindowTest, the_window_stands_on_the_screen_with_its_frame) {
    const QWidget& main = *window("Velmora");
    ASSERT_NE(main.frameGeometry().size(), main.size()) << "a frame is needed to see it";
    EXPECT_TRUE(main.screen()->availableGeometry().contains(main.frameGeometry()));
}

TEST_F(MainWindowTest, pointer_and_keys_reach_the_canvas) {
    QTest::mouseClick(&pic(), Qt::LeftButton, {}, place(10, 10));
    EXPECT_EQ(session.PtoSel, 2);
    EXPECT_TRUE(pic().hasFocus());
    QTest::keyClick(&pic(), Qt::Key_N);
    EXPECT_EQ(session.PtoSel, 3);
    QTest::keyClick(&pic(), Qt::Key_M);
    EXPECT_EQ(session.PtoSel, 2);
    QTest::keyClick(&pic(), Qt::Key_S);
    EXPECT_EQ(Forma.Pto[2].Sinc, 1);
    QTest::keyClick(&pic(), Qt::Key_Up);
    EXPECT_EQ(Forma.Pto[2].Y, 10.1);
}

TEST_F(MainWindowTest, ctrl_is_known_while_it_is_down) {
    QTest::keyPress(&pic(), Qt::Key_Control);
    EXPECT_NE(session.CtrlDown, False);
    QTest::keyRelease(&pic(), Qt::Key_Control);
    EXPECT_EQ(session.CtrlDown, False);
}

TEST_F(MainWindowTest, the_label_shows_the_point_under_the_pointer_below_it) {
    const auto& label = control<QLabel>("Velmora", "lbl_xyfloat");
    EXPECT_FALSE(label.isVisible());
    move_to(place(10, 10));
    EXPECT_TRUE(label.isVisible());
    EXPECT_EQ(label.text(), "  2: (10 10)");
    EXPECT_EQ(label.pos(), place(10, 10) + QPoint(10, 10));
    EXPECT_GE(label.width(), label.sizeHint().width());
    move_to(place(5, 5));
    EXPECT_FALSE(label.isVisible());
}

TEST_F(MainWindowTest, the_label_goes_with_the_shape_that_it_told_of) {
    const auto& label = control<QLabel>("Velmora", "lbl_xyfloat");
    for (const char* command : {"mnu_openfile", "mnu_closefile"}) {
        open_shape({{0, 0}, {10, 0}, {10, 10}, {0, 10}});
        move_to(place(10, 10));
        ASSERT_TRUE(label.isVisible());
        control<QAction>("Velmora", command).trigger();
        EXPECT_FALSE(label.isVisible()) << command;
    }
}

TEST_F(MainWindowTest, the_label_goes_when_another_shape_comes) {
    const auto& label = control<QLabel>("Velmora", "lbl_xyfloat");
    move_to(place(10, 10));
    ASSERT_TRUE(label.isVisible());
    open_shape({{0, 0}, {50, 0}, {50, 50}});
    EXPECT_FALSE(label.isVisible());
}

TEST_F(MainWindowTest, a_right_click_on_a_point_opens_its_menu_with_what_it_allows) {
    QTest::mouseClick(&pic(), Qt::RightButton, {}, place(10, 0));
    EXPECT_EQ(session.PtoSel, 1);
    EXPECT_TRUE(window("Velmora")->findChild<QMenu*>("OPT_PTO")->isVisible());
    EXPECT_FALSE(control<QAction>("Velmora", "Pts_To_Next_Sinc").isEnabled());
}

TEST_F(MainWindowTest, an_entry_of_the_point_menu_works_without_the_menu_being_open) {
    session.PtoSel = 2;
    control<QAction>("Velmora", "Set_00").trigger();
    EXPECT_EQ(Forma.Pto[2].X, 0);
    EXPECT_EQ(Forma.Pto[0].X, -10);
}

TEST_F(MainWindowTest, a_positive_shape_opens_at_the_lower_left) {
    EXPECT_EQ(scroll().horizontalScrollBar()->value(), 0);
    EXPECT_EQ(scroll().verticalScrollBar()->value(), scroll().verticalScrollBar()->maximum());
}

TEST_F(MainWindowTest, a_shape_with_negatives_opens_further_in) {
    Forma.Pto[0] = {-5, -5};
    windows().run([] { Define_Layout(); });
    const QScrollBar& across = *scroll().horizontalScrollBar();
    const QScrollBar& down = *scroll().verticalScrollBar();
    EXPECT_NEAR(across.value(), across.maximum() / 5.0, 0.5);
    EXPECT_NEAR(down.value(), down.maximum() / 3.0, 0.5);
}

TEST_F(MainWindowTest, scrolling_by_the_user_repaints_unless_no_redraw_is_set) {
    Forma.Pto.redim(0); // a repaint then tells that there is no shape
    session.NoRedraw = True;
    scroll().verticalScrollBar()->triggerAction(QScrollBar::SliderPageStepSub);
    settle();
    EXPECT_TRUE(dialogs().boxes.empty());
    session.NoRedraw = False;
    scroll().verticalScrollBar()->triggerAction(QScrollBar::SliderPageStepSub);
    settle();
    EXPECT_EQ(dialogs().boxes.size(), 1U);
}

TEST_F(MainWindowTest, resizing_does_not_repaint) {
    Forma.Pto.redim(0);
    session.NoRedraw = False;
    window("Velmora")->resize(500, 400);
    settle();
    EXPECT_TRUE(dialogs().boxes.empty());
}

TEST_F(MainWindowTest, the_status_is_shown_while_the_handler_runs) {
    windows().run([this] {
        session.Velmora.StatusBar1 = "Invirtiendo Sentido de Corte...";
        windows().status_changed();
        const auto labels =
            window("Velmora")->findChild<QWidget*>("StatusBar1")->findChildren<QLabel*>();
        ASSERT_FALSE(labels.isEmpty());
        EXPECT_EQ(labels.first()->text(), "Invirtiendo Sentido de Corte...");
    });
}

TEST_F(MainWindowTest, a_note_stands_in_a_line_of_its_own_until_the_next_action) {
    const QLabel& note = control<QLabel>("Velmora", "lbl_notice");
    EXPECT_FALSE(note.isVisible());
    const auto tell = [&] {
        session.Velmora.lbl_notice = "3 puntos; 72 líneas con números pasadas por alto";
        windows().refresh();
        settle();
    };
    tell();
    EXPECT_TRUE(note.isVisible());
    EXPECT_EQ(note.text().toStdString(), session.Velmora.lbl_notice);
    EXPECT_FALSE(session.Velmora.StatusBar1 == session.Velmora.lbl_notice);
    control<QAction>("Velmora", "mnu_mirrorh").trigger();
    EXPECT_FALSE(note.isVisible());
    tell();
    QTest::keyClick(window("Velmora")->windowHandle(), Qt::Key_N);
    settle();
    EXPECT_FALSE(note.isVisible());
    tell();
    QTest::mouseClick(window("Velmora")->windowHandle(), Qt::LeftButton, {}, {300, 300});
    settle();
    EXPECT_FALSE(note.isVisible());
}

TEST_F(MainWindowTest, move_shape_shows_the_up_arrow_on_the_canvas) {
    session.Velmora.pic_MousePointer = 10;
    windows().refresh();
    EXPECT_EQ(pic().cursor().shape(), Qt::UpArrowCursor);
    session.Velmora.pic_MousePointer = 0;
    windows().refresh();
    EXPECT_EQ(pic().cursor().shape(), Qt::ArrowCursor);
}

TEST_F(MainWindowTest, a_minimized_window_is_known_to_the_session) {
    window("Velmora")->showMinimized();
    settle();
    EXPECT_TRUE(session.Velmora.minimized);
}

void drop(QWidget& window, const QList<QUrl>& urls) {
    QMimeData data;
    data.setUrls(urls);
    const QPointF place(window.rect().center());
    QDragEnterEvent entering(place.toPoint(), Qt::CopyAction, &data, Qt::LeftButton,
                             Qt::NoModifier);
    QApplication::sendEvent(&window, &entering);
    QDropEvent event(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&window, &event);
}

TEST_F(MainWindowTest, a_dropped_file_is_opened) {
    const std::string file = path("dropped.dat");
    ASSERT_TRUE(
        QFile::copy(QString::fromStdString((source_dir() / "data/samples/raiz.dat").string()),
                    QString::fromStdString(file)));
    drop(*window("Velmora"), {QUrl::fromLocalFile(QString::fromStdString(file))});
    settle();
    EXPECT_EQ(session.Velmora.TxtDat_File, file);
    EXPECT_EQ(session.TotalPtos, Forma.Pto.upper() + 1);
}

TEST_F(MainWindowTest, what_is_not_one_file_of_this_machine_is_not_taken) {
    session.Velmora.TxtDat_File = "before";
    drop(*window("Velmora"), {QUrl(QStringLiteral("ftp://nowhere/wing.dat"))});
    drop(*window("Velmora"), {QUrl::fromLocalFile(QStringLiteral("/a.dat")),
                              QUrl::fromLocalFile(QStringLiteral("/b.dat"))});
    settle();
    EXPECT_EQ(session.Velmora.TxtDat_File, "before");
}

} // namespace

} // namespace velmora::test
