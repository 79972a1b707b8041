// Every box that takes numbers alone, by every way that a character can come.
#include "windows/windows_test.h"

#include <QApplication>
#include <QClipboard>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QtTest>

namespace velmora::test {

namespace {

struct Box {
    const char* window;
    const char* name;
    const char* reset = "0";
};

constexpr Box kBoxes[] = {
    {"winoptions", "TxtPutArc"},
    {"winoptions", "TxtPutCircle"},
    {"winoptions", "TxtPrecision"},
    {"winoptions", "Txt_zoom"},
    {"setup", "Txt_Def_Dec_Val"},
    {"setup", "Txt_Def_Arc_Val", "3"},
    {"setup", "Txt_Def_Circle_Val", "4"},
    {"setup", "Txt_Def_zoom_Val"},
    {"del_Npto", "Txt_Numpoints2del"},
    {"del_Npto", "Txt_JumpPoints"},
    {"ajuste_opt", "txt_X"},
    {"ajuste_opt", "txt_Y"},
    {"ajuste_opt", "txt_Z"},
    {"Compensa", "Txt_merma"},
    {"Scale_xy", "txt_fixed_x"},
    {"Scale_xy", "txt_fixed_y"},
    {"Scale_xy", "txt_percent_x"},
    {"Scale_xy", "txt_percent_y"},
};

void press(QLineEdit& box) {
    QTest::keyClick(&box, Qt::Key_X);
}

void compose(QLineEdit& box) {
    QInputMethodEvent event;
    event.setCommitString("á");
    QCoreApplication::sendEvent(&box, &event);
}

void paste(QLineEdit& box) {
    QApplication::clipboard()->setText("1e5");
    QTest::keyClick(&box, Qt::Key_Insert, Qt::ShiftModifier);
}

void drop(QLineEdit& box) {
    QMimeData data;
    data.setText("5 mm");
    // Over the box first: the toolkit gives the drop to what took that.
    QDragEnterEvent over(QPoint(3, 3), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&box, &over);
    QDropEvent event(QPointF(3, 3), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&box, &event);
}

class NumericBoxesTest : public WindowsTest {
  protected:
    void SetUp() override {
        start_program();
        Forma.Pto.redim(5);
        for (int i = 0; i < 6; ++i)
            Forma.Pto[i].X = i;
    }
    void expect_refused(const Box& box, void (*come_in)(QLineEdit&)) {
        auto& line = control<QLineEdit>(box.window, box.name);
        line.setText("1");
        dialogs().boxes.clear();
        come_in(line);
        settle();
        EXPECT_EQ(line.text().toStdString(), box.reset);
        ASSERT_EQ(dialogs().boxes.size(), 1U);
        EXPECT_EQ(dialogs().boxes[0].text, "Sólo se permiten números!");
    }
};

TEST_F(NumericBoxesTest, refuse_by_every_way_what_they_refuse_as_a_key) {
    for (const Box& box : kBoxes) {
        SCOPED_TRACE(std::string(box.window) + "." + box.name);
        if (window(box.window) == nullptr || !window(box.window)->isVisible())
            show(box.window);
        if (std::string_view(box.name).starts_with("txt_percent"))
            control<QAbstractButton>("Scale_xy", "Opt_percent").click();
        for (const auto come_in : {press, compose, paste, drop})
            expect_refused(box, come_in);
    }
}

TEST_F(NumericBoxesTest, take_a_pasted_number) {
    show("Scale_xy");
    QApplication::clipboard()->setText("12,5");
    auto& box = control<QLineEdit>("Scale_xy", "txt_fixed_x");
    box.selectAll();
    QTest::keyClick(&box, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(box.text(), "12.5");
    windows().refresh();
    EXPECT_EQ(session.Scale_xy.txt_fixed_x, "12.5");
}

// A whole line of a sheet or an editor ends in a line end.
TEST_F(NumericBoxesTest, take_a_pasted_line_without_its_end) {
    show("Scale_xy");
    auto& box = control<QLineEdit>("Scale_xy", "txt_fixed_x");
    dialogs().boxes.clear();
    for (const char* line : {"12.5\n", "13.5\r\n", "14.5\r"}) {
        QApplication::clipboard()->setText(line);
        box.selectAll();
        QTest::keyClick(&box, Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(box.text(), QString(line).trimmed());
    }
    EXPECT_TRUE(dialogs().boxes.empty());
}

// What a dead key and a letter make was read by the program as no number, which ended it.
TEST_F(NumericBoxesTest, a_composed_letter_does_not_reach_the_stored_settings) {
    show("setup");
    auto& zoom = control<QLineEdit>("setup", "Txt_Def_zoom_Val");
    zoom.setText("100");
    compose(zoom);
    control<QAbstractButton>("setup", "cmd_ok").click();
    settle();
    EXPECT_EQ(window("setup"), nullptr);
    EXPECT_EQ(session.Def_Zoom, 0);
    EXPECT_EQ(session.ZoomFactor, 1);
}

} // namespace

} // namespace velmora::test
