#include "windows/controls.h"

#include "script/fault.h"
#include "script/words.h"
#include "ui/window_host.h"

#include <QAction>
#include <QApplication>
#include <QWidget>

namespace velmora::driver {

ControlName control_name_of(std::string_view word) {
    const auto point = word.find('.');
    if (point == std::string_view::npos)
        return {std::string(word), {}};
    return {std::string(word.substr(0, point)), std::string(word.substr(point + 1))};
}

QWidget& find_window(const WindowHost& windows, const std::string& name) {
    QWidget* window = windows.window(name);
    if (window == nullptr || !window->isVisible())
        fault("the window " + word_text(name) + " is not open");
    return *window;
}

QObject& find_control(const WindowHost& windows, std::string_view word) {
    const ControlName name = control_name_of(word);
    QWidget* window = windows.window(name.window);
    if (window == nullptr)
        fault("the window " + word_text(name.window) + " is not open");
    if (name.control.empty())
        return *window;
    QObject* control = windows.control(name.window, name.control);
    if (control == nullptr)
        fault("the window " + name.window + " has no control " + word_text(name.control));
    return *control;
}

QWidget& find_widget(const WindowHost& windows, std::string_view word) {
    check_reachable(find_window(windows, control_name_of(word).window));
    auto* widget = qobject_cast<QWidget*>(&find_control(windows, word));
    if (widget == nullptr)
        fault(std::string(word) + " is no control that takes keys or clicks");
    return *widget;
}

void check_reachable(const QWidget& window) {
    const QWidget* modal = QApplication::activeModalWidget();
    if (modal != nullptr && modal != &window)
        fault("the window " + modal->objectName().toStdString() + " has to be closed first");
}

} // namespace velmora::driver
