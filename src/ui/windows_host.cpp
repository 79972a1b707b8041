#include "ui/windows_host.h"

namespace velmora {

struct WindowsHost::Private {};
WindowsHost::WindowsHost() : d(std::make_unique<Private>()) {}
WindowsHost::~WindowsHost() = default;
void WindowsHost::start() {}
QWidget* WindowsHost::window(std::string_view) const {
    return nullptr;
}
QObject* WindowsHost::control(std::string_view, std::string_view) const {
    return nullptr;
}
bool WindowsHost::idle() const {
    return true;
}
void WindowsHost::run(const std::function<void()>& handler) {
    handler();
}
void WindowsHost::activate(std::string_view) {}
void WindowsHost::deactivate(std::string_view) {}
void WindowsHost::refresh() {}
void WindowsHost::show(std::string_view) {}
void WindowsHost::show_modal(std::string_view) {}
void WindowsHost::unload(std::string_view) {}
void WindowsHost::minimize(std::string_view) {}
void WindowsHost::set_focus(std::string_view, std::string_view) {}
void WindowsHost::popup_menu(std::string_view) {}
Form* WindowsHost::form(std::string_view) {
    return nullptr;
}
void WindowsHost::status_changed() {}
void WindowsHost::pointer_changed() {}
void WindowsHost::yield() {}
void WindowsHost::wait(int) {}
void WindowsHost::end_program() {}

} // namespace velmora
