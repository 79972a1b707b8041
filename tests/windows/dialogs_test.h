// A window that a command opens modally: what a test does in it is laid out before the command.
#pragma once

#include "windows/windows_test.h"

#include <QAction>
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
    /// The names of the controls that Tab visits, from `first` round.
    static std::vector<std::string> tab_order(QWidget& first) {
        std::vector<std::string> names;
        QWidget* at = &first;
        do {
            const bool stops = (at->focusPolicy() & Qt::TabFocus) != 0 && !at->isWindow() &&
                               at->focusProxy() == nullptr;
            if (stops && at->isEnabledTo(at->window()) && at->isVisibleTo(at->window()))
                names.push_back(at->objectName().toStdString());
            at = at->nextInFocusChain();
        } while (at != &first);
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
