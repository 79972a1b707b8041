// The desktop's message boxes: their icons and buttons.
#include "adapters/qt/qt_dialogs.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <functional>
#include <gtest/gtest.h>

namespace velmora::test {

namespace {

/// The icon and the buttons of the box that `show` shows; it is answered by its default button.
struct Seen {
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    QMessageBox::StandardButtons buttons;
};

Seen look_at(const std::function<void()>& show) {
    Seen seen;
    QTimer::singleShot(0, [&seen] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        seen = {box->icon(), box->standardButtons()};
        box->accept();
    });
    show();
    return seen;
}

TEST(QtDialogs, a_box_has_the_icon_of_its_code) {
    const auto dialogs = make_qt_dialogs();
    const std::pair<int, QMessageBox::Icon> icons[] = {
        {0, QMessageBox::NoIcon},
        {buttons::critical, QMessageBox::Critical},
        {buttons::question, QMessageBox::Question},
        {buttons::exclamation, QMessageBox::Warning},
        {buttons::information, QMessageBox::Information},
    };
    for (const auto& [code, icon] : icons)
        EXPECT_EQ(look_at([&, code = code] { dialogs->message("a", code, "b"); }).icon, icon);
}

TEST(QtDialogs, an_icon_that_helps_is_shown_where_the_code_names_none) {
    const auto dialogs = make_qt_dialogs();
    const Seen helped =
        look_at([&] { dialogs->message_with_icon(buttons::question, "a", buttons::yes_no, "b"); });
    EXPECT_EQ(helped.icon, QMessageBox::Question);
    EXPECT_EQ(helped.buttons, QMessageBox::Yes | QMessageBox::No);
    const Seen coded = look_at(
        [&] { dialogs->message_with_icon(buttons::question, "a", buttons::critical, "b"); });
    EXPECT_EQ(coded.icon, QMessageBox::Critical);
    EXPECT_EQ(coded.buttons, QMessageBox::Ok);
}

} // namespace

} // namespace velmora::test
