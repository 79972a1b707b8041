#include "steps.h"

#include "commands/command_table.h"
#include "script/words.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QTabWidget>
#include <QWidget>

#include <algorithm>

namespace velmora::random {

namespace {

using driver::word_text;

constexpr std::string_view kFiles[] = {"ala.dat",  "perfil.dat", "pieza.dxf", "corte.scr",
                                       "otro.dat", "nuevo.dat",  "falta.dat"};
constexpr std::string_view kTexts[] = {"0",  "1",   "2",     "-1", "3.5", "0.001", "100",
                                       "10", "999", "30000", "",   " ",   "x",     "1e9",
                                       "-0", "1,5", "360",   "45", ".",   "Ala"};
constexpr std::string_view kKeys[] = {
    "Left", "Right", "Up", "Down", "Home",   "End",    "Delete", "Insert", "Space", "S",
    "A",    "D",     "Q",  "W",    "Return", "Esc",    "PgUp",   "PgDown", "+",     "-",
    "F5",   "F6",    "F7", "F8",   "Ctrl+S", "Ctrl+D", "Ctrl+I", "Ctrl+Z", "F9",    "Ctrl+A"};

std::vector<const QWidget*> open_windows() {
    if (const QWidget* modal = QApplication::activeModalWidget())
        return {modal};
    std::vector<const QWidget*> windows;
    for (const QWidget* window : QApplication::topLevelWidgets())
        if (window->isVisible() && window->isWindow() && !window->objectName().isEmpty())
            windows.push_back(window);
    // The toolkit lists them in an order of its own, another in each process.
    std::ranges::sort(windows, {}, [](const QWidget* window) { return window->objectName(); });
    return windows;
}

bool is_control(const QWidget& widget) {
    return qobject_cast<const QAbstractButton*>(&widget) != nullptr ||
           qobject_cast<const QLineEdit*>(&widget) != nullptr ||
           qobject_cast<const QComboBox*>(&widget) != nullptr ||
           qobject_cast<const QTabWidget*>(&widget) != nullptr;
}

/// By their names in the window, without what the toolkit puts into them.
std::vector<const QWidget*> controls_of(const QWidget& window) {
    std::vector<const QWidget*> controls;
    for (const QWidget* widget : window.findChildren<QWidget*>())
        if (widget->isVisible() && widget->isEnabled() && is_control(*widget) &&
            !widget->objectName().isEmpty() && !widget->objectName().startsWith("qt_"))
            controls.push_back(widget);
    return controls;
}

} // namespace

std::vector<std::string> Steps::opening() {
    const auto file = [](const std::string& name, std::initializer_list<std::string_view> lines) {
        std::string text;
        for (const std::string_view line : lines)
            text.append(line).append("\r\n");
        return "write " + name + " " + word_text(text);
    };
    return {
        file("perfil.dat", {"Perfil", "1.0 0.0", "0.5 0.08", "0.0 0.0", "0.5 -0.04", "1.0 0.0"}),
        file("otro.dat", {"0 0", "100 0", "100 25.5", "50 30", "0 25.5", "0 0"}),
        file("ala.dat", {"Ala", "no numbers here", "1,5 2,5"}),
        file("corte.scr", {"PLINE", "0,0", "10,0", "10,10", "0,0", ""}),
        file("pieza.dxf",
             {"  0", "SECTION", "  2", "ENTITIES", "  0", "LINE",   " 10", "0.0", " 20", "0.0",
              " 11", "9.0",     " 21", "0.0",      "  0", "LINE",   " 10", "9.0", " 20", "0.0",
              " 11", "9.0",     " 21", "7.0",      "  0", "ENDSEC", "  0", "EOF"}),
        "cad running Autocad 15",
        "cad document dibujo",
        "cad line 0 0 10 0",
        "cad line 10 0 10 10",
        "cad arc 0 10 10 4.712 6.283",
        "cad line 0 10 0 0",
        "start",
    };
}

std::string Steps::next() {
    if (one_in(6))
        return coming_answer();
    const auto windows = open_windows();
    if (windows.empty())
        return "wait 1";
    const QWidget& window = *windows[below(windows.size())];
    const std::string name = window.objectName().toStdString();
    return name == "Velmora" ? in_main_window() : in_window(name);
}

std::string Steps::coming_answer() {
    static constexpr std::string_view kAnswers[] = {"answer 1", "answer 2", "answer 6", "answer 7"};
    static constexpr std::string_view kOthers[] = {"pick-cancel",      "input-cancel",
                                                   "colour 255",       "colour-cancel",
                                                   "font Arial 12",    "font-cancel",
                                                   "cad pick 0 0",     "cad pick 10 0",
                                                   "cad line 3 3 9 9", "cad pick-error 80020009"};
    switch (below(4)) {
    case 0:
        return one_of(kAnswers);
    case 1:
        return "input " + word_text(typed());
    case 2:
        return "pick " + one_of(kFiles);
    default:
        return one_of(kOthers);
    }
}

std::string Steps::in_main_window() {
    const auto rows = std::to_string(below(12));
    switch (below(5)) {
    case 0:
    case 1: {
        const auto entries = menu_entries();
        const MenuEntry& entry = entries[below(entries.size())];
        const bool leaves = entry.name == "mnu_exit" || entry.handler == nullptr;
        if (leaves && !one_in(50))
            return on_canvas();
        const std::string place = entry.index > 0 ? "(" + std::to_string(entry.index) + ")" : "";
        return "menu " + std::string(entry.name) + place;
    }
    case 2: {
        const auto keys = tool_keys();
        const std::string_view key = keys[below(keys.size())].key;
        return key == "K_EXIT" ? "row " + rows : "tool " + std::string(key);
    }
    case 3:
        return one_in(2) ? "row " + rows : "key Velmora.pic " + one_of(kKeys);
    default:
        return on_canvas();
    }
}

std::string Steps::on_canvas() {
    static constexpr std::string_view kSteps[] = {"down", "move", "up"};
    static constexpr std::string_view kButtons[] = {"left", "left", "right", "none"};
    const std::string step = one_of(kSteps);
    const std::string button = one_of(kButtons);
    const std::string place = std::to_string(below(900)) + " " + std::to_string(below(600));
    return "pointer " + step + " " +
           (step == "move"     ? button
            : button == "none" ? "left"
                               : button) +
           " " + place + (one_in(6) ? " ctrl" : "");
}

std::string Steps::in_window(const std::string& name) {
    if (one_in(12))
        return "close " + name;
    const QWidget* window = stage_.windows().window(name);
    if (window == nullptr)
        return "wait 1";
    const auto controls = controls_of(*window);
    if (controls.empty())
        return "close " + name;
    const QWidget& control = *controls[below(controls.size())];
    return on_control(control, name + "." + control.objectName().toStdString());
}

std::string Steps::on_control(const QWidget& control, const std::string& word) {
    if (const auto* tabs = qobject_cast<const QTabWidget*>(&control))
        return "tab " + word + " " + std::to_string(below(static_cast<std::size_t>(tabs->count())));
    if (qobject_cast<const QAbstractButton*>(&control) != nullptr)
        return "click " + word;
    if (one_in(8))
        return "key " + word + " " + one_of(kKeys);
    return (one_in(2) ? "set " : "type ") + word + " " + word_text(typed());
}

std::string Steps::typed() {
    return one_in(3) ? std::to_string(static_cast<int>(below(2000)) - 1000) : one_of(kTexts);
}

} // namespace velmora::random
