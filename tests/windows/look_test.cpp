// What a window shows: every text whole, in longer languages and at twice the size too; mnemonics
// that do not clash, a name for whoever reads the screen aloud.
#include "windows/shown_texts.h"
#include "windows/windows_test.h"

#include "platform/form.h"
#include "ui/window_registry.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QTabWidget>
#include <gmock/gmock.h>

namespace velmora::test {

namespace {

using testing::IsEmpty;

/// Every window but the start window, which gives way to the others.
std::vector<std::string> windows_at_work() {
    std::vector<std::string> names;
    for (const std::string_view name : window_names())
        if (name != "intro")
            names.emplace_back(name);
    return names;
}

class LookTest : public WindowsTest {
  protected:
    void SetUp() override { start_program(); }
    void TearDown() override { QApplication::setFont(font_); }

    /// All windows loaded and shown, unrolled.
    void show_all() {
        for (const std::string& name : windows_at_work())
            show(name);
    }
    void unroll(std::string_view name) {
        windows().activate(name);
        settle();
    }
    static void enlarge_font(double factor) {
        QFont larger = QApplication::font();
        larger.setPointSizeF(larger.pointSizeF() * factor);
        QApplication::setFont(larger);
    }
    /// Each text half as long again, as another language's can be.
    void lengthen_texts(std::string_view window) {
        Form& form = *windows().form(window);
        for (int i = 0; i < form.control_count(); ++i)
            for (int part = 0; part < form.control(i).parts(); ++part)
                lengthen(form.control(i), part);
    }

  private:
    static void lengthen(FormControl& control, int part) {
        if (control.kind() == ControlKind::text_box || control.kind() == ControlKind::status_bar)
            return;
        try {
            const std::string text = control.text(part);
            control.set_text(part, text + std::string(text.size() / 2, 'n'));
        } catch (const RuntimeError&) {
            // a control without a text
        }
    }

    QFont font_ = QApplication::font();
};

TEST_F(LookTest, no_text_is_cut) {
    show_all();
    for (const std::string& name : windows_at_work()) {
        unroll(name);
        EXPECT_THAT(cut_texts(*window(name)), IsEmpty()) << name;
        picture(*window(name), name);
    }
}

TEST_F(LookTest, no_text_is_cut_in_a_longer_language) {
    show_all();
    for (const std::string& name : windows_at_work()) {
        lengthen_texts(name);
        windows().deactivate(name);
        unroll(name);
        EXPECT_THAT(cut_texts(*window(name)), IsEmpty()) << name;
        picture(*window(name), name + "-long");
    }
}

TEST_F(LookTest, no_text_is_cut_at_twice_the_size) {
    enlarge_font(2);
    restart();
    show_all();
    for (const std::string& name : windows_at_work()) {
        unroll(name);
        EXPECT_THAT(cut_texts(*window(name)), IsEmpty()) << name;
        picture(*window(name), name + "-200");
    }
}

TEST_F(LookTest, the_start_window_shows_its_texts) {
    rebuild();
    windows().start();
    settle();
    EXPECT_THAT(cut_texts(*window("intro")), IsEmpty());
    EXPECT_EQ(control<QLabel>("intro", "lblVer").text(), "Ver. 1.0");
    EXPECT_EQ(control<QLabel>("intro", "lblsubver").text(), "1011");
    picture(*window("intro"), "intro");
}

TEST_F(LookTest, no_two_mnemonics_of_a_page_clash) {
    show_all();
    for (const std::string& name : windows_at_work()) {
        unroll(name);
        EXPECT_EQ(clashing_mnemonics(*window(name)).toStdString(), "") << name;
    }
}

TEST_F(LookTest, whatever_takes_the_focus_has_a_name) {
    show_all();
    for (const std::string& name : windows_at_work()) {
        unroll(name);
        for (QWidget* widget : window(name)->findChildren<QWidget*>()) {
            const bool own = !widget->objectName().isEmpty() &&
                             !widget->objectName().startsWith("qt_") &&
                             (widget->focusPolicy() & Qt::TabFocus) != 0;
            QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(widget);
            EXPECT_TRUE(!own || qobject_cast<QTabWidget*>(widget) != nullptr ||
                        (spoken != nullptr && !spoken->text(QAccessible::Name).isEmpty()))
                << name << "." << widget->objectName().toStdString();
        }
    }
}

} // namespace

} // namespace velmora::test
