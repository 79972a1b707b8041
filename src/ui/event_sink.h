// Where a window's events go: what a window asks of whoever keeps the windows.
#pragma once

#include <functional>
#include <string_view>

namespace velmora {

class EventSink {
  public:
    virtual ~EventSink() = default;
    /// Runs a handler of the logic as an event of a window.
    virtual void run(const std::function<void()>& handler) = 0;
    /// The same, but a run-time error stops the handler alone: it is reported, the program goes on.
    virtual void run_alone(const std::function<void()>& handler) = 0;
    /// No handler is running or, where one waits in a modal window, nothing runs above that window.
    [[nodiscard]] virtual bool idle() const = 0;
    /// The window gets the activation from another window of the program, as an event.
    virtual void activate(std::string_view window) = 0;
    /// The desktop gave a window its focus. A side window that was shown without it keeps the
    /// activation when the focus comes to the main window, until that one is used.
    virtual void focused(std::string_view window) = 0;
    /// The close box of a window, as an event. The program ends with its last window.
    virtual void close(std::string_view window) = 0;
};

} // namespace velmora
