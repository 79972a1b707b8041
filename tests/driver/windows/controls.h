// The windows and controls that a script names: "Velmora", "winoptions.Txt_zoom",
// "New_Dat.Picture1(2)". A ScriptFault where there is none.
#pragma once

#include <string>
#include <string_view>

class QAction;
class QObject;
class QWidget;

namespace velmora {
class WindowHost;
}

namespace velmora::driver {

struct ControlName {
    std::string window;
    std::string control; ///< empty for the window itself
};

[[nodiscard]] ControlName control_name_of(std::string_view word);

/// A window that is open.
[[nodiscard]] QWidget& find_window(const WindowHost& windows, const std::string& name);
/// A control of a loaded window, or the window itself: a widget, or the action of a menu entry or a
/// toolbar key.
[[nodiscard]] QObject& find_control(const WindowHost& windows, std::string_view word);
/// A control of an open window that a person can reach: no modal window stands above it.
[[nodiscard]] QWidget& find_widget(const WindowHost& windows, std::string_view word);
/// A ScriptFault when a modal window stands above this one.
void check_reachable(const QWidget& window);

} // namespace velmora::driver
