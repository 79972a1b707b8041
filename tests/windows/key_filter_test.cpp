// The ways by which characters come into a box that looks at them.
#include "ui/key_filter.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QtTest>
#include <gtest/gtest.h>
#include <memory>
#include <vector>

namespace velmora::test {

namespace {

/// Takes digits, and a comma as a point. The box has what stood there before in "12|34".
class KeyFilterTest : public testing::Test {
  protected:
    KeyFilterTest() {
        new KeyFilter(box(), [this](int code) { return decide(code); });
        box().setText("1234");
        box().setCursorPosition(2);
    }
    ~KeyFilterTest() override { QApplication::clipboard()->clear(); }

    QLineEdit& box() { return *box_; }
    std::string text() { return box().text().toStdString(); }

    void compose(const QString& text, const QString& half = {}) {
        QInputMethodEvent event(half, {});
        event.setCommitString(text);
        QCoreApplication::sendEvent(&box(), &event);
    }
    void paste(const QString& text) {
        QApplication::clipboard()->setText(text);
        QTest::keyClick(&box(), Qt::Key_V, Qt::ControlModifier);
    }
    void paste_by_menu(const QString& text) {
        QApplication::clipboard()->setText(text);
        QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(5, 5),
                                box().mapToGlobal(QPoint(5, 5)));
        QCoreApplication::sendEvent(&box(), &event);
        for (QAction* entry : menu()->actions())
            if (entry->text().startsWith(QLineEdit::tr("&Paste")))
                entry->trigger();
        menu()->close();
    }
    QMenu* menu() { return box().findChild<QMenu*>(); }
    void drop(const QString& text) {
        QMimeData data;
        data.setText(text);
        const QPoint end(box().width() - 2, box().height() / 2);
        // Over the box first: the toolkit gives the drop to what took that.
        QDragEnterEvent over(end, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&box(), &over);
        QDropEvent event(end, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton,
                         Qt::NoModifier);
        QCoreApplication::sendEvent(&box(), &event);
        EXPECT_EQ(event.dropAction(), Qt::CopyAction); // where it comes from, it stays
        QCoreApplication::processEvents();
    }

    std::vector<int> refused;

  private:
    int decide(int code) {
        if (code == ',')
            return '.';
        if (code == 8 || code == 13 || (code >= '0' && code <= '9'))
            return code;
        refused.push_back(code);
        return 0;
    }

    std::unique_ptr<QLineEdit> box_ = std::make_unique<QLineEdit>();
};

TEST_F(KeyFilterTest, digits_come_in_by_every_way) {
    QTest::keyClick(&box(), Qt::Key_5);
    compose("6");
    paste("78");
    paste_by_menu("9");
    EXPECT_EQ(text(), "125678934");
    drop("0");
    EXPECT_EQ(text(), "1256789340");
    EXPECT_TRUE(refused.empty());
}

TEST_F(KeyFilterTest, what_is_taken_instead_comes_in_by_every_way) {
    QTest::keyClick(&box(), Qt::Key_Comma);
    compose("5,6");
    paste(",7");
    paste_by_menu(",");
    EXPECT_EQ(text(), "12.5.6.7.34");
    drop(",8");
    EXPECT_EQ(text(), "12.5.6.7.34.8");
}

TEST_F(KeyFilterTest, a_refused_character_is_refused_by_every_way) {
    QTest::keyClick(&box(), Qt::Key_X);
    QTest::sendKeyEvent(QTest::Press, &box(), Qt::Key_E, "é", Qt::NoModifier);
    QTest::sendKeyEvent(QTest::Press, &box(), Qt::Key_unknown, "😀", Qt::NoModifier);
    compose("á");
    paste("y");
    paste_by_menu("z");
    drop("w");
    EXPECT_EQ(refused, (std::vector<int>{'x', 0xE9, 0x1F600, 0xE1, 'y', 'z', 'w'}));
    EXPECT_EQ(text(), "1234");
}

TEST_F(KeyFilterTest, a_text_with_a_refused_character_is_refused_whole) {
    compose("5x6");
    paste("5x6");
    paste_by_menu("5x6");
    drop("5x6");
    EXPECT_EQ(text(), "1234");
    EXPECT_EQ(refused, (std::vector<int>(4, 'x'))) << "one character of a text is told";
}

// A pasted line end is no Enter, a pasted control character no Backspace.
TEST_F(KeyFilterTest, control_characters_of_a_text_are_no_keys) {
    for (const char* text : {"\r5", "5\n6", "5\b", "\t"}) {
        refused.clear();
        paste(text);
        EXPECT_EQ(refused, std::vector<int>{0});
    }
    EXPECT_EQ(text(), "1234");
}

TEST_F(KeyFilterTest, paste_goes_over_what_is_selected) {
    box().selectAll();
    paste("99");
    EXPECT_EQ(text(), "99");
    box().selectAll();
    paste("9x");
    EXPECT_EQ(text(), "99");
}

TEST_F(KeyFilterTest, a_key_held_with_alt_types_too) {
    QTest::sendKeyEvent(QTest::Press, &box(), Qt::Key_A, "a", Qt::AltModifier);
    QTest::sendKeyEvent(QTest::Press, &box(), Qt::Key_E, "€",
                        Qt::ControlModifier | Qt::AltModifier);
    EXPECT_EQ(refused, (std::vector<int>{'a', 0x20AC}));
    EXPECT_EQ(text(), "1234");
}

TEST_F(KeyFilterTest, half_a_composed_character_is_shown_and_goes_with_a_refused_one) {
    compose({}, "´");
    EXPECT_TRUE(refused.empty());
    compose("á");
    EXPECT_EQ(refused, std::vector<int>{0xE1});
    EXPECT_EQ(box().inputMethodQuery(Qt::ImSurroundingText).toString(), "1234");
    EXPECT_EQ(box().displayText(), "1234");
    compose("5");
    EXPECT_EQ(text(), "12534");
}

TEST_F(KeyFilterTest, editing_keys_still_work) {
    QTest::keyClick(&box(), Qt::Key_Backspace);
    QTest::keyClick(&box(), Qt::Key_Delete);
    EXPECT_EQ(text(), "14");
    box().selectAll();
    QTest::keyClick(&box(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "14");
    QTest::keyClick(&box(), Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(text(), "");
    EXPECT_TRUE(refused.empty());
}

} // namespace

} // namespace velmora::test
