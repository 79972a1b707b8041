// A window that a command opens modally: what a test does in it is laid out before the command.
#pragma once

#include "windows/windows_test.h"

#include <QAction>
#include <QApplication>
#include <QTest>
#include <QTimer>
#include <QWidget>
#include <functional>

namespace velmora::test {

class DialogsTest : public WindowsTest {
  protected:
    void SetUp() override {
        start_program();
        told.clear();
        dialogs().boxes.clear();
    }
    /// Triggers the menu entry and runs `steps` in the window that it opens, which must be gone, or
    /// is closed, behind them.
    void in_dialog(const std::string& entry, const std::string& name,
                   const std::function<void()>& steps) {
        bool ran = false;
        QTimer::singleShot(0, [&] {
            ASSERT_NE(window(name), nullptr) << name;
            ran = true;
            settle();
            steps();
            settle();
            if (QWidget* left = window(name))
                left->close();
        });
        control<QAction>("Velmora", entry).trigger();
        settle();
        EXPECT_TRUE(ran) << entry;
    }
    /// The names of the controls that presses of Tab visit, from `first` round.
    static std::vector<std::string> tab_order(QWidget& first) {
        constexpr std::size_t most = 60;
        std::vector<std::string> names;
        first.setFocus(Qt::TabFocusReason);
        settle();
        // The window's own focus: it holds also where the desktop has not activated the window yet.
        const QWidget& window = *first.window();
        QWidget* at = window.focusWidget();
        while (at != nullptr && names.size() < most) {
            names.push_back(at->objectName().toStdString());
            QTest::keyClick(at, Qt::Key_Tab);
            settle();
            at = window.focusWidget();
            if (at == &first)
                break;
        }
        return names;
    }
    /// Every text of the window is wide enough for what it says.
    static void expect_nothing_cut(QWidget& window) {
        for (QWidget* widget : window.findChildren<QWidget*>()) {
            if (!widget->isVisible() || widget->focusProxy() != nullptr)
                continue;
            const QSize least = widget->minimumSizeHint();
            EXPECT_GE(widget->width(), least.width()) << widget->objectName().toStdString();
            EXPECT_GE(widget->height(), least.height()) << widget->objectName().toStdString();
        }
    }
};

} // namespace velmora::test
