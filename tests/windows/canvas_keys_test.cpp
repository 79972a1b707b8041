// The keys of the canvas, by real events: which code each key of the toolkit has, Ctrl that is let
// go elsewhere, Tab.
#include "support/outline.h"
#include "windows/canvas_test.h"

#include <QLineEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <gmock/gmock.h>

namespace velmora::test {

namespace {

using testing::AnyOf;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr int kPlain = 0x01000000; ///< the toolkit's keys from here on type no character

struct KeyCode {
    int key;
    int code;
};

class CanvasKeysTest : public CanvasTest {
  protected:
    static void press(QWidget& widget, int key, Qt::KeyboardModifiers modifiers = {}) {
        QKeyEvent event(QEvent::KeyPress, key, modifiers, typed_by(key));
        QCoreApplication::sendEvent(&widget, &event);
    }
    static void release(QWidget& widget, int key) {
        QKeyEvent event(QEvent::KeyRelease, key, Qt::NoModifier);
        QCoreApplication::sendEvent(&widget, &event);
    }
    static QString typed_by(int key) { return key < kPlain ? QString(QChar(key)) : QString(); }
    /// What the canvas tells the logic of a key.
    int code_of(int key, Qt::KeyboardModifiers modifiers = {}) {
        int code = -1;
        pic().key_down = [&](int seen, bool) {
            code = seen;
        };
        press(pic(), key, modifiers);
        return code;
    }
    QScrollBar& bar(Qt::Orientation orientation) {
        auto& scroll = control<QScrollArea>("Velmora", "SSScroll");
        return orientation == Qt::Horizontal ? *scroll.horizontalScrollBar()
                                             : *scroll.verticalScrollBar();
    }
    std::vector<int> bars() { return {bar(Qt::Horizontal).value(), bar(Qt::Vertical).value()}; }
    void insert_points() { control<QAction>("Velmora", "Insert_N_Ptos").trigger(); }
    void click(double x, double y) { QTest::mouseClick(&pic(), Qt::LeftButton, {}, place(x, y)); }
    static std::vector<int> sync_marks() {
        std::vector<int> marks;
        for (const Pto& point : Forma.Pto.all())
            marks.push_back(point.Sinc);
        return marks;
    }
};

TEST_F(CanvasKeysTest, letters_and_digits_have_the_codes_of_their_capitals) {
    for (int key = Qt::Key_A; key <= Qt::Key_Z; ++key)
        for (const auto modifiers : {Qt::NoModifier, Qt::ShiftModifier})
            EXPECT_EQ(code_of(key, modifiers), key);
    for (int key = Qt::Key_0; key <= Qt::Key_9; ++key)
        EXPECT_EQ(code_of(key), key);
    EXPECT_EQ(code_of(Qt::Key_Space), 32);
}

// Their characters are the codes of other keys: "." that of Delete, "-" of Insert, "(" of Down.
TEST_F(CanvasKeysTest, signs_and_letters_with_accents_are_keys_without_a_code) {
    const std::string signs = "!\"#$%&'()*+,-./:;<=>?@[\\]^_`{|}~";
    for (const char sign : signs)
        EXPECT_EQ(code_of(sign, Qt::ShiftModifier), 0) << sign;
    for (const char sign : signs)
        EXPECT_EQ(code_of(sign), 0) << sign;
    for (int key = 0x7F; key < 0x2000; ++key)
        EXPECT_EQ(code_of(key), 0) << key;
}

TEST_F(CanvasKeysTest, dead_keys_have_no_code_and_compose_nothing) {
    for (int key = Qt::Key_Dead_Grave; key <= Qt::Key_Dead_Longsolidusoverlay; ++key)
        EXPECT_EQ(code_of(key), 0) << key;
    EXPECT_EQ(code_of(Qt::Key_Multi_key), 0);
    EXPECT_FALSE(pic().testAttribute(Qt::WA_InputMethodEnabled));
}

TEST_F(CanvasKeysTest, the_named_keys_have_theirs) {
    for (const auto& [key, code] :
         {KeyCode{Qt::Key_Backspace, 8}, KeyCode{Qt::Key_Return, 13}, KeyCode{Qt::Key_Shift, 16},
          KeyCode{Qt::Key_Control, 17}, KeyCode{Qt::Key_Alt, 18}, KeyCode{Qt::Key_AltGr, 18},
          KeyCode{Qt::Key_Meta, 18}, KeyCode{Qt::Key_Escape, 27}, KeyCode{Qt::Key_PageUp, 33},
          KeyCode{Qt::Key_PageDown, 34}, KeyCode{Qt::Key_End, 35}, KeyCode{Qt::Key_Home, 36},
          KeyCode{Qt::Key_Left, 37}, KeyCode{Qt::Key_Up, 38}, KeyCode{Qt::Key_Right, 39},
          KeyCode{Qt::Key_Down, 40}, KeyCode{Qt::Key_Insert, 45}, KeyCode{Qt::Key_Delete, 46}})
        EXPECT_EQ(code_of(key), code) << key;
}

TEST_F(CanvasKeysTest, the_number_pad_moves_and_edits_with_num_lock_off) {
    for (const auto& [key, code] :
         {KeyCode{Qt::Key_Insert, 45}, KeyCode{Qt::Key_Delete, 46}, KeyCode{Qt::Key_Left, 37},
          KeyCode{Qt::Key_Up, 38}, KeyCode{Qt::Key_Right, 39}, KeyCode{Qt::Key_Down, 40},
          KeyCode{Qt::Key_PageUp, 33}, KeyCode{Qt::Key_PageDown, 34}, KeyCode{Qt::Key_End, 35},
          KeyCode{Qt::Key_Home, 36}, KeyCode{Qt::Key_Clear, 12}, KeyCode{Qt::Key_Enter, 13}})
        EXPECT_EQ(code_of(key, Qt::KeypadModifier), code) << key;
}

TEST_F(CanvasKeysTest, the_number_pads_digits_and_signs_have_codes_of_their_own) {
    for (int digit = 0; digit <= 9; ++digit)
        EXPECT_EQ(code_of(Qt::Key_0 + digit, Qt::KeypadModifier), 96 + digit);
    for (const auto& [key, code] :
         {KeyCode{Qt::Key_Asterisk, 106}, KeyCode{Qt::Key_Plus, 107}, KeyCode{Qt::Key_Minus, 109},
          KeyCode{Qt::Key_Period, 110}, KeyCode{Qt::Key_Comma, 110}, KeyCode{Qt::Key_Slash, 111}})
        EXPECT_EQ(code_of(key, Qt::KeypadModifier), code) << key;
}

TEST_F(CanvasKeysTest, no_character_changes_the_shape) {
    const Points before = shape();
    session.PtoSel = 2;
    for (int key = Qt::Key_Space; key < 0x250; ++key) {
        if (key == Qt::Key_S || key == Qt::Key_M || key == Qt::Key_N)
            continue;
        press(pic(), key);
        press(pic(), key, Qt::KeypadModifier);
        ASSERT_EQ(shape(), before) << key;
        ASSERT_EQ(session.PtoSel, 2) << key;
    }
    EXPECT_THAT(dialogs().boxes, IsEmpty());
}

TEST_F(CanvasKeysTest, the_number_pads_delete_takes_the_point_away) {
    session.PtoSel = 2;
    press(pic(), Qt::Key_Delete, Qt::KeypadModifier);
    EXPECT_EQ(shape(), (Points{{0, 0}, {10, 0}, {0, 10}}));
    press(pic(), Qt::Key_Up, Qt::KeypadModifier);
    EXPECT_EQ(Forma.Pto[1].Y, 0.1);
}

TEST_F(CanvasKeysTest, a_modifier_alone_is_no_key) {
    control<QAction>("Velmora", "mnu_closefile").trigger();
    session.PtoSel = 2;
    for (const int key :
         {Qt::Key_Control, Qt::Key_Shift, Qt::Key_Alt, Qt::Key_AltGr, Qt::Key_Meta}) {
        press(pic(), key);
        release(pic(), key);
    }
    EXPECT_THAT(dialogs().boxes, IsEmpty());
    press(pic(), Qt::Key_X);
    EXPECT_EQ(dialogs().boxes.size(), 1U) << "any other key repaints, and there is no shape";
}

TEST_F(CanvasKeysTest, ctrl_is_up_when_the_canvas_loses_the_focus) {
    session.PtoSel = 1;
    insert_points();
    pic().setFocus();
    QTest::keyPress(&pic(), Qt::Key_Control);
    EXPECT_EQ(session.CtrlDown, True);
    control<QLineEdit>("Velmora", "TxtDescDat").setFocus();
    EXPECT_EQ(session.CtrlDown, False);
    pic().setFocus();
    click(12, 3);
    EXPECT_EQ(shape().size(), 5U);
    EXPECT_THAT(sync_marks(), Each(0));
}

/// A dialog over the main window, that takes the release of the keys.
class Intruder : public QObject {
  public:
    explicit Intruder(QWidget& owner) : box_(&owner) {}
    void come_and_go() {
        box_.show();
        QApplication::setActiveWindow(&box_);
        box_.setFocus();
        box_.close();
        QApplication::setActiveWindow(box_.parentWidget());
    }

  private:
    QDialog box_;
};

TEST_F(CanvasKeysTest, ctrl_is_up_after_a_command_whose_dialog_took_its_release) {
    pic().setFocus();
    Intruder dialog(*window("Velmora"));
    QTest::keyPress(&pic(), Qt::Key_Control);
    QTest::keyPress(&pic(), Qt::Key_B, Qt::ControlModifier);
    EXPECT_EQ(session.CtrlDown, True);
    dialog.come_and_go();
    EXPECT_EQ(session.CtrlDown, False);
}

// The handler notes Ctrl at its end, when a message has come and gone.
TEST_F(CanvasKeysTest, ctrl_is_up_after_a_key_whose_message_took_its_release) {
    pic().setFocus();
    Intruder message(*window("Velmora"));
    const auto handler = pic().key_down;
    pic().key_down = [&](int key, bool ctrl) {
        message.come_and_go();
        handler(key, ctrl);
    };
    QTest::keyPress(&pic(), Qt::Key_Delete, Qt::ControlModifier);
    EXPECT_EQ(shape().size(), 3U);
    EXPECT_EQ(session.CtrlDown, False);
}

TEST_F(CanvasKeysTest, tab_leaves_the_canvas_where_it_is) {
    open_shape({{-10, -10}, {40, -10}, {40, 40}});
    settle();
    const auto as_laid_out = bars();
    for (const auto& [key, modifiers] :
         {std::pair(Qt::Key_Tab, Qt::NoModifier), std::pair(Qt::Key_Backtab, Qt::ShiftModifier)}) {
        pic().setFocus();
        QTest::keyClick(&pic(), key, modifiers);
        EXPECT_FALSE(pic().hasFocus());
        EXPECT_EQ(bars(), as_laid_out);
        settle();
        EXPECT_EQ(bars(), as_laid_out);
    }
}

TEST_F(CanvasKeysTest, a_turn_of_tabs_through_the_window_leaves_the_bars_where_the_user_put_them) {
    settle();
    bar(Qt::Horizontal).setSliderPosition(31);
    bar(Qt::Vertical).setSliderPosition(17);
    pic().setFocus();
    int turns = 0;
    do {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        settle();
        ASSERT_THAT(bars(), ElementsAre(31, 17));
    } while (!pic().hasFocus() && ++turns < 20);
    EXPECT_THAT(turns, AnyOf(2, 3));
}

} // namespace

} // namespace velmora::test
