// What WindowHost keeps: the loaded windows, who is active, which handlers run and wait.
#pragma once

#include "ui/side_ground.h"
#include "ui/window.h"
#include "ui/window_host.h"
#include "ui/window_registry.h"

#include <QEventLoop>
#include <QMenu>
#include <QPointer>
#include <chrono>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace velmora {

/// Unwinds a handler that waits, in a modal window or a yield, while the program ended. It is
/// neither a std::exception nor a run-time error, so that no trap of the logic takes it.
struct EndOfProgram {};

struct WindowHost::Private {
    struct Modal {
        std::string window;
        QEventLoop* loop;
        int depth; ///< of the handler that waits
    };

    Private(WindowHost& owner, ShownImage& canvas)
        : host(owner), around{owner, canvas, beside_main, [&owner](std::string_view window) {
                                  owner.load(window);
                              }} {}

    WindowHost& host;
    SideGround beside_main{[this] { return host.window("Velmora"); }, {}};
    Surroundings around;
    std::map<std::string, std::unique_ptr<Window>, std::less<>> windows;
    std::vector<Modal> modals;
    QPointer<Window> active;
    bool activation_due =
        false;               ///< to be asked of the desktop when the handler has returned or waits
    bool beside = false;     ///< the active window was shown without the desktop's focus
    bool presenting = false; ///< a window is being shown; its activation comes with that
    int running = 0;         ///< handlers, one above the other
    int ending_depth = 0;    ///< of the handler that asked for the end, 0 none
    bool ended = false;
    std::string popup; ///< to be opened when the handler has returned
    QPointer<QMenu> open_popup;
    std::chrono::steady_clock::time_point last_yield{};

    [[nodiscard]] Window* find(std::string_view name) const;
    [[nodiscard]] std::vector<QPointer<Window>> all() const;
    Window& loaded(std::string_view name);
    void present(Window& window);
    /// Moves the activation, with the events of both windows. A window behind a modal one gets
    /// none.
    void set_active(Window* window);
    /// The desktop's activation to the window that has the program's.
    void ask_for_activation();
    void leave_modal(const std::string& window);

    void pull() const;
    void push() const;
    void fail(const RuntimeError& failure);
    void tell_stopped(const RuntimeError& failure) const;
    void start_again();
    void finish(int status);
    void leave_if_ended() const;
    void show_popup();
};

} // namespace velmora
