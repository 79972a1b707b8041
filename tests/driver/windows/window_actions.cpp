// What a person does with the windows.
#include "commands/command_table.h"
#include "document/session.h"
#include "script/fault.h"
#include "script/numbers.h"
#include "script/words.h"
#include "windows/actions.h"
#include "windows/controls.h"
#include "windows/gestures.h"
#include "windows/menus.h"
#include "windows/stage.h"

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QEventLoop>
#include <QPointer>
#include <QTabWidget>
#include <QTimer>

#include <algorithm>
#include <array>
#include <utility>

namespace velmora::driver {

namespace {

/// The window that a person works with has the activation. A pop-up menu goes as soon as something
/// else is used: while it is open no shortcut works.
void bring_forward(Stage& stage, const std::string& name) {
    QWidget& window = find_window(stage.windows(), name);
    check_reachable(window);
    if (QWidget* popup = QApplication::activePopupWidget())
        popup->close();
    if (QApplication::activeWindow() != &window) {
        window.activateWindow();
        QApplication::setActiveWindow(&window);
    }
    stage.windows().activate(name);
}

/// A control, with its window brought forward first, which can have closed it.
QPointer<QWidget> reach(Stage& stage, const std::string& word) {
    QPointer<QWidget> control = &find_widget(stage.windows(), word);
    bring_forward(stage, control_name_of(word).window);
    return control;
}

QPointer<QWidget> reach_for_keys(Stage& stage, const std::string& word) {
    auto control = reach(stage, word);
    if (control && !control->hasFocus())
        control->setFocus(Qt::OtherFocusReason);
    return control;
}

void start(Stage& stage, Words words) {
    want_words(words, 0, "start");
    if (std::exchange(stage.started, true))
        fault("the program has started already");
    stage.windows().start();
    click(find_widget(stage.windows(), "intro.Image1"));
}

void menu(Stage& stage, Words words) {
    want_words(words, 1, "menu NAME");
    bring_forward(stage, "Velmora");
    click_menu(stage.windows(), stage.transcript, words[0]);
}

void tool(Stage& stage, Words words) {
    want_words(words, 1, "tool NAME");
    bring_forward(stage, "Velmora");
    if (find_tool_key(words[0]) == nullptr)
        fault("no toolbar key " + word_text(words[0]));
    if (auto* key = qobject_cast<QAction*>(&find_control(stage.windows(), "Velmora." + words[0])))
        key->trigger();
}

// Ctrl goes down and up around its key, but where the script holds it.
void key(Stage& stage, Words words) {
    want_words(words, 2, "key CONTROL KEYS");
    const Key pressed = key_of(words[1]);
    const Key ctrl = key_of("Ctrl");
    const bool takes_ctrl = !is_modifier(pressed) && !stage.ctrl_held &&
                            pressed.modifiers.testFlag(Qt::ControlModifier);
    const auto control = reach_for_keys(stage, words[0]);
    if (control && takes_ctrl)
        press_key(*control, ctrl);
    if (control)
        press_key(*control, pressed);
    if (control)
        release_key(*control, pressed);
    if (control && takes_ctrl)
        release_key(*control, ctrl);
}

void hold_ctrl(Stage& stage, const Key& key, bool down) {
    if (key.code == Qt::Key_Control)
        stage.ctrl_held = down;
}

void key_down(Stage& stage, Words words) {
    want_words(words, 2, "key-down CONTROL KEYS");
    const Key pressed = key_of(words[1]);
    hold_ctrl(stage, pressed, true);
    if (const auto control = reach_for_keys(stage, words[0]))
        press_key(*control, pressed);
}

void key_up(Stage& stage, Words words) {
    want_words(words, 2, "key-up CONTROL KEYS");
    const Key released = key_of(words[1]);
    hold_ctrl(stage, released, false);
    release_key(find_widget(stage.windows(), words[0]), released);
}

void type(Stage& stage, Words words) {
    want_words(words, 2, "type CONTROL TEXT");
    if (const auto control = reach_for_keys(stage, words[0]))
        type_text(*control, words[1]);
}

void set(Stage& stage, Words words) {
    want_words(words, 2, "set CONTROL TEXT");
    if (const auto control = reach_for_keys(stage, words[0]))
        paste_text(*control, words[1]);
}

void focus(Stage& stage, Words words) {
    want_words(words, 1, "focus CONTROL");
    if (const auto control = reach(stage, words[0]))
        control->setFocus(Qt::OtherFocusReason);
}

void click_control(Stage& stage, Words words) {
    want_words(words, 1, "click CONTROL");
    if (qobject_cast<QAction*>(&find_control(stage.windows(), words[0])) != nullptr)
        fault(words[0] + " is no control that takes clicks");
    if (const auto control = reach(stage, words[0]))
        click(*control);
}

void tab(Stage& stage, Words words) {
    want_words(words, 2, "tab CONTROL N");
    const std::int32_t number = count_number(words[1]);
    const auto tabs = qobject_cast<QTabWidget*>(reach(stage, words[0]));
    if (tabs == nullptr)
        fault(words[0] + " has no tabs");
    click_tab(*tabs, number);
}

void row(Stage& stage, Words words) {
    want_words(words, 1, "row N");
    const std::int32_t number = count_number(words[0]);
    const auto list = qobject_cast<QAbstractItemView*>(reach(stage, "Velmora.Lst_Coords"));
    if (list == nullptr)
        fault("Lst_Coords is no list");
    click_row(*list, number);
}

template <class Value, std::size_t Count>
Value named(const std::array<std::pair<std::string_view, Value>, Count>& table,
            const std::string& word, const char* form) {
    const auto found =
        std::ranges::find(table, word, [](const auto& entry) { return entry.first; });
    if (found == table.end())
        fault(std::string("the form is ") + form);
    return found->second;
}

void pointer_event(Stage& stage, Words words) {
    constexpr auto form = "pointer down|move|up left|right|none X Y [ctrl]";
    constexpr auto steps = std::to_array<std::pair<std::string_view, PointerStep>>(
        {{"down", PointerStep::down}, {"move", PointerStep::move}, {"up", PointerStep::up}});
    constexpr auto buttons = std::to_array<std::pair<std::string_view, Qt::MouseButton>>(
        {{"left", Qt::LeftButton}, {"right", Qt::RightButton}, {"none", Qt::NoButton}});
    if (words.size() != 5)
        want_words(words, 4, form);
    const bool ctrl = words.size() == 5;
    const PointerStep step = named(steps, words[0], form);
    const Qt::MouseButton button = named(buttons, words[1], form);
    if (ctrl && words[4] != "ctrl")
        fault(std::string("the form is ") + form);
    const QPointF place(real_number(words[2]), real_number(words[3]));
    auto canvas = QPointer<QWidget>(&find_widget(stage.windows(), "Velmora.pic"));
    if (step == PointerStep::down)
        canvas = reach(stage, "Velmora.pic");
    if (canvas)
        pointer(*canvas, step, button, place, ctrl);
}

void close(Stage& stage, Words words) {
    want_words(words, 1, "close WINDOW");
    QWidget& window = find_window(stage.windows(), words[0]);
    check_reachable(window);
    window.close();
}

void activate(Stage& stage, Words words) {
    want_words(words, 1, "activate WINDOW");
    bring_forward(stage, words[0]);
}

void deactivate(Stage& stage, Words words) {
    want_words(words, 1, "deactivate WINDOW");
    const QWidget& window = find_window(stage.windows(), words[0]);
    if (QApplication::activeWindow() == &window)
        QApplication::setActiveWindow(nullptr);
    stage.windows().deactivate(words[0]);
}

void wait(Stage& stage, Words words) {
    want_words(words, 1, "wait MILLISECONDS");
    const std::int32_t milliseconds = count_number(words[0]);
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    stage.waiting = true;
    loop.exec();
    stage.waiting = false;
}

constexpr auto kActions = std::to_array<NamedAction>({
    {"start", start},
    {"menu", menu},
    {"tool", tool},
    {"key", key},
    {"key-down", key_down},
    {"key-up", key_up},
    {"type", type},
    {"set", set},
    {"focus", focus},
    {"click", click_control},
    {"tab", tab},
    {"row", row},
    {"pointer", pointer_event},
    {"close", close},
    {"activate", activate},
    {"deactivate", deactivate},
    {"wait", wait},
});

} // namespace

std::span<const NamedAction> window_actions() {
    return kActions;
}

} // namespace velmora::driver
