#include "ui/window_host.h"

#include "document/windows/velmora.h"
#include "ui/guide_key.h"
#include "ui/icons.h"
#include "ui/window_host_state.h"

#include <QApplication>
#include <QCursor>
#include <QWindow>

namespace velmora {

namespace {

constexpr std::string_view kMain = "Velmora";

/// Keeps a window in front of the one that it belongs to, without handing it over to that one.
void attach(QWidget& widget, const QWidget* owner) {
    if (owner == nullptr || owner == &widget || owner->windowHandle() == nullptr)
        return;
    (void)widget.winId(); // makes the native window
    widget.windowHandle()->setTransientParent(owner->windowHandle());
}

/// Where the pointer is; in the middle of a window that a key asked and the pointer is not over.
QPoint popup_place(const QWidget& window) {
    const QRect on_screen(window.mapToGlobal(QPoint(0, 0)), window.size());
    return on_screen.contains(QCursor::pos()) ? QCursor::pos() : on_screen.center();
}

Qt::CursorShape cursor_of(int pointer) {
    switch (pointer) {
    case 2:
        return Qt::CrossCursor;
    case 10:
        return Qt::UpArrowCursor;
    case 11:
        return Qt::WaitCursor;
    default:
        return Qt::ArrowCursor;
    }
}

} // namespace

WindowHost::WindowHost(ShownImage& canvas) : d(std::make_unique<Private>(*this, canvas)) {
    // Between the start window and the main one there is none.
    QGuiApplication::setQuitOnLastWindowClosed(false);
    (void)new GuideKey(this);
}

WindowHost::~WindowHost() {
    d->windows.clear();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

Window* WindowHost::Private::find(std::string_view name) const {
    const auto found = windows.find(name);
    return found == windows.end() ? nullptr : found->second.get();
}

std::vector<QPointer<Window>> WindowHost::Private::all() const {
    std::vector<QPointer<Window>> result;
    for (const auto& [name, window] : windows)
        result.emplace_back(window.get());
    return result;
}

Window& WindowHost::Private::loaded(std::string_view name) {
    if (Window* found = find(name))
        return *found;
    auto made = make_window(name, around);
    if (made == nullptr)
        raise(error::object_required);
    Window& window = *made;
    windows.emplace(name, std::move(made));
    window.Load();
    return window;
}

void WindowHost::Private::present(Window& window) {
    QWidget& widget = window.widget();
    const bool appears = !widget.isVisible();
    const QPointer<Window> alive(&window);
    window.bindings().push();
    presenting = true;
    if (appears) {
        if (window.name() != kMain)
            attach(widget, active ? &active->widget() : host.window(kMain));
        window.place();
        // A window manager gives a new window the focus when it gets to it, which can be after the
        // handler gave it to another one.
        widget.setAttribute(Qt::WA_ShowWithoutActivating);
    }
    if (widget.isMinimized())
        widget.showNormal();
    else
        widget.show();
    widget.raise();
    activation_due = true;
    presenting = false;
    if (appears && host.events.opened)
        host.events.opened(window.name());
    if (!alive)
        return;
    set_active(&window);
    beside = active == alive && !alive->takes_focus();
}

void WindowHost::Private::set_active(Window* window) {
    const bool behind_modal =
        window != nullptr && !modals.empty() && modals.back().window != window->name();
    if (window == active || behind_modal)
        return;
    const QPointer<Window> before = active;
    const QPointer<Window> now = window;
    active = window;
    beside = false;
    if (before)
        before->Deactivate();
    if (now && active == now)
        now->Activate();
}

void WindowHost::Private::ask_for_activation() {
    if (!std::exchange(activation_due, false) || !active)
        return;
    if (QWidget* widget = beside ? host.window(kMain) : &active->widget())
        widget->activateWindow();
}

void WindowHost::start() {
    QApplication::setWindowIcon(app_icon()); // of message boxes too
    run([this] { show("intro"); });
}

QWidget* WindowHost::window(std::string_view name) const {
    const Window* found = d->find(name);
    return found == nullptr ? nullptr : &found->widget();
}

QObject* WindowHost::control(std::string_view window, std::string_view name) const {
    const Window* found = d->find(window);
    return found == nullptr ? nullptr : found->control(name);
}

void WindowHost::activate(std::string_view window) {
    const QPointer<Window> found = d->find(window);
    if (!found || found == d->active || d->presenting)
        return;
    run([&] { d->set_active(found); });
}

void WindowHost::focused(std::string_view window) {
    if (d->beside && window == kMain)
        return;
    d->beside = false;
    activate(window);
}

void WindowHost::deactivate(std::string_view window) {
    if (d->active && d->active == d->find(window))
        run([&] { d->set_active(nullptr); });
}

void WindowHost::close(std::string_view window) {
    const std::string name(window);
    run([&] {
        if (Window* found = d->find(name))
            found->QueryUnload();
        unload(name);
        if (d->windows.empty() || name == kMain)
            end_program();
    });
}

void WindowHost::load(std::string_view window) {
    (void)d->loaded(window);
}

void WindowHost::show(std::string_view window) {
    d->present(d->loaded(window));
}

void WindowHost::show_modal(std::string_view window) {
    const std::string name(window);
    const QPointer<Window> before = d->active;
    Window& shown = d->loaded(name);
    shown.widget().setWindowModality(Qt::ApplicationModal);
    QEventLoop loop;
    d->modals.push_back({name, &loop, d->running});
    try {
        d->present(shown);
        if (d->find(name) == &shown) {
            refresh();
            d->ask_for_activation();
            loop.exec(QEventLoop::DialogExec);
        }
    } catch (...) {
        d->modals.pop_back();
        throw;
    }
    d->modals.pop_back();
    d->leave_if_ended();
    if (before)
        d->set_active(before);
}

void WindowHost::Private::leave_modal(const std::string& window) {
    for (const Modal& modal : modals)
        if (modal.window == window)
            modal.loop->quit();
}

void WindowHost::unload(std::string_view window) {
    const std::string name(window);
    const QPointer<Window> leaving = d->find(name);
    if (!leaving)
        return;
    leaving->Unload();
    const auto found = d->windows.find(name);
    if (found == d->windows.end())
        return;
    std::unique_ptr<Window> gone = std::move(found->second);
    d->windows.erase(found);
    if (d->active == gone.get())
        d->active = nullptr;
    const bool vanishes = gone->widget().isVisible();
    gone->retire();
    gone->widget().hide();
    d->leave_modal(name);
    if (vanishes && events.closed)
        events.closed(name);
    // The event that unloads a window often comes from one of its own controls.
    gone.release()->deleteLater();
}

void WindowHost::minimize(std::string_view window) {
    if (QWidget* found = this->window(window))
        found->showMinimized();
}

void WindowHost::set_focus(std::string_view window, std::string_view control) {
    Window* found = d->find(window);
    if (found == nullptr)
        return;
    if (found != d->active) {
        d->activation_due = true;
        d->set_active(found);
    }
    if (auto* widget = qobject_cast<QWidget*>(found->control(control)))
        widget->setFocus(Qt::OtherFocusReason);
}

void WindowHost::popup_menu(std::string_view menu) {
    d->popup = menu;
}

void WindowHost::Private::show_popup() {
    if (popup.empty())
        return;
    const QString name = QString::fromStdString(std::exchange(popup, {}));
    const QWidget* main = host.window(kMain);
    open_popup = main == nullptr ? nullptr : main->findChild<QMenu*>(name);
    if (open_popup)
        open_popup->popup(popup_place(*main));
}

Form* WindowHost::form(std::string_view window) {
    Window* found = d->find(window);
    return found == nullptr ? nullptr : &found->form();
}

void WindowHost::status_changed() {
    if (events.status)
        events.status(state::Velmora.StatusBar1);
    for (const auto& [name, window] : d->windows)
        window->status_changed();
}

void WindowHost::pointer_changed() {
    const int pointer = state::Velmora.MousePointer;
    if (events.pointer)
        events.pointer(pointer);
    if (pointer == 0)
        QGuiApplication::restoreOverrideCursor();
    else if (QGuiApplication::overrideCursor() == nullptr)
        QGuiApplication::setOverrideCursor(cursor_of(pointer));
    else
        QGuiApplication::changeOverrideCursor(cursor_of(pointer));
}

} // namespace velmora
