// What a person must be able to see, or be told: edges, what only shows, the focus, names.
#include "windows/windows_test.h"

#include "support/outline.h"
#include "toolkit/contrast.h"
#include "ui/window_registry.h"
#include "windows/shown_texts.h"

#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QStyle>
#include <QStyleOptionButton>
#include <gmock/gmock.h>
#include <set>

namespace velmora::test {

namespace {

using testing::IsEmpty;

QPalette dark_palette() {
    QPalette palette(QColor("#2b2f36"));
    palette.setColor(QPalette::Base, QColor("#1f2227"));
    return palette;
}

QImage picture_of(QWidget& widget) {
    widget.resize(widget.sizeHint());
    return widget.grab().toImage();
}

/// The strongest contrast to the window's colour that a place of the widget shows.
double strongest(const QImage& image, const QRect& place, const QColor& ground) {
    double result = 1;
    for (int y = place.top(); y <= place.bottom(); ++y)
        for (int x = place.left(); x <= place.right(); ++x)
            result = std::max(result, contrast(image.pixelColor(x, y), ground));
    return result;
}

class Themes : public testing::TestWithParam<bool> {
  protected:
    Themes() {
        if (GetParam())
            QApplication::setPalette(dark_palette());
    }
    ~Themes() override { QApplication::setPalette(before_); }

    QPalette before_ = QApplication::palette();
};

TEST_P(Themes, an_empty_check_box_and_radio_button_have_an_edge) {
    QCheckBox check;
    QRadioButton radio;
    for (QAbstractButton* button :
         {static_cast<QAbstractButton*>(&check), static_cast<QAbstractButton*>(&radio)}) {
        const QImage image = picture_of(*button);
        EXPECT_GE(strongest(image, image.rect(), button->palette().color(QPalette::Window)), 3)
            << button->metaObject()->className();
    }
}

TEST_P(Themes, a_box_that_only_shows_lies_on_the_colour_of_its_window) {
    QLineEdit typed;
    QLineEdit shown;
    shown.setReadOnly(true);
    const QPoint middle = QRect(QPoint(), typed.sizeHint()).center();
    EXPECT_EQ(picture_of(typed).pixelColor(middle), typed.palette().color(QPalette::Base));
    EXPECT_EQ(picture_of(shown).pixelColor(middle), shown.palette().color(QPalette::Window));
}

INSTANTIATE_TEST_SUITE_P(Themes, Themes, testing::Bool(),
                         [](const auto& dark) { return dark.param ? "dark" : "light"; });

class VisibleTest : public WindowsTest {
  protected:
    void SetUp() override { start_program(); }

    static std::vector<std::string> names() {
        std::vector<std::string> result;
        for (const std::string_view name : window_names())
            if (name != "intro")
                result.emplace_back(name);
        return result;
    }
};

/// What a screen reader stops at, and has nothing to say of without a name.
const std::set<QAccessible::Role> kNamed = {
    QAccessible::EditableText, QAccessible::PushButton,  QAccessible::CheckBox,
    QAccessible::RadioButton,  QAccessible::ComboBox,    QAccessible::List,
    QAccessible::PageTab,      QAccessible::ProgressBar, QAccessible::Graphic,
    QAccessible::Slider,       QAccessible::SpinBox,     QAccessible::MenuItem,
};

void collect_nameless(QAccessibleInterface* node, std::vector<std::string>& found) {
    if (node == nullptr || node->state().invisible)
        return;
    const QObject* object = node->object();
    const bool own = object == nullptr || !object->objectName().startsWith("qt_");
    if (own && kNamed.contains(node->role()) && node->text(QAccessible::Name).isEmpty())
        found.push_back((object == nullptr
                             ? QString("part of a control")
                             : object->objectName() + ' ' + object->metaObject()->className())
                            .toStdString());
    // The rows of a list and the buttons inside a control speak for themselves.
    if (node->role() == QAccessible::List || node->role() == QAccessible::ComboBox)
        return;
    for (int child = 0; child < node->childCount(); ++child)
        collect_nameless(node->child(child), found);
}

TEST_F(VisibleTest, every_control_has_a_name_for_who_cannot_see_it) {
    for (const std::string& name : names()) {
        show(name);
        windows().activate(name);
        std::vector<std::string> nameless;
        on_each_page(*window(name), [&](int) {
            collect_nameless(QAccessible::queryAccessibleInterface(window(name)), nameless);
        });
        EXPECT_THAT(nameless, IsEmpty()) << name;
        if (name != "Velmora")
            windows().run([&] { windows().unload(name); });
    }
}

QImage look_of(QWidget& widget) {
    QCoreApplication::processEvents();
    return widget.grab().toImage();
}

/// The dots that one picture has otherwise than the other, so that an eye sees it.
int changed_dots(const QImage& one, const QImage& other) {
    int count = 0;
    for (int y = 0; y < one.height(); ++y)
        for (int x = 0; x < one.width(); ++x)
            if (contrast(one.pixelColor(x, y), other.pixelColor(x, y)) > 1.4)
                ++count;
    return count;
}

TEST_F(VisibleTest, the_focus_is_seen_on_everything_that_takes_it) {
    constexpr int kFewDots = 12;
    set_shape({{0, 0}, {4, 0}, {6, 2}, {6, 6}, {4, 8}, {0, 8}}); // without one a box gives it back
    for (const std::string& name : names()) {
        show(name);
        windows().activate(name);
        QWidget& shown = *window(name);
        shown.activateWindow();
        settle();
        shown.setAttribute(Qt::WA_KeyboardFocusChange);
        on_each_page(shown, [&](int) {
            for (QWidget* widget : shown.findChildren<QWidget*>()) {
                const bool stops = widget->isVisible() && widget->isEnabled() &&
                                   (widget->focusPolicy() & Qt::TabFocus) != 0 &&
                                   !widget->objectName().startsWith("qt_");
                if (!stops)
                    continue;
                // The panel round the canvas shows its focus.
                QWidget& look = widget->objectName() == "pic"
                                    ? control<QWidget>("Velmora", "SSPanel1")
                                    : *widget;
                widget->clearFocus();
                const QImage without = look_of(look);
                widget->setFocus(Qt::TabFocusReason);
                EXPECT_GE(changed_dots(without, look_of(look)), kFewDots)
                    << name << '.' << widget->objectName().toStdString() << ' '
                    << widget->metaObject()->className();
            }
        });
        if (name != "Velmora")
            windows().run([&] { windows().unload(name); });
    }
}

} // namespace

} // namespace velmora::test
