// The program's windows, kept by name, and the dispatcher through which every event reaches a
// handler of the logic: the windows' texts go into the session before it, the session's into the
// windows after it, and a run-time error that nothing handled ends here.
#pragma once

#include "platform/program_windows.h"
#include "runtime/error.h"
#include "ui/event_sink.h"

#include <QObject>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

class QWidget;

namespace velmora {

class ShownImage;

/// Calls to someone who watches the windows; each may be empty.
struct WindowEvents {
    std::function<void(const std::string& window)> opened;
    std::function<void(const std::string& window)> closed;
    std::function<void(const std::string& text)> status;
    std::function<void(int pointer)> pointer;
    /// Without one, the report "Run-time error 'N':" is shown. The program ends with status 1.
    std::function<void(const RuntimeError& failure)> fault;
    /// A handler failed that fails alone; without one, the same report is shown. The program goes
    /// on.
    std::function<void(const RuntimeError& failure)> stopped;
    std::function<void()> ended;
    /// A handler that none waits for returned.
    std::function<void()> handled;
};

class WindowHost : public QObject, public ProgramWindows, public EventSink {
    Q_OBJECT
  public:
    /// `canvas` is what the main window shows; it outlives the host.
    explicit WindowHost(ShownImage& canvas);
    ~WindowHost() override;

    WindowEvents events;

    /// Shows the start window; it gives way to the main window.
    void start();
    /// A loaded window by its name, nullptr while it is not loaded.
    [[nodiscard]] QWidget* window(std::string_view name) const;
    /// The control `name` of a loaded window, "Picture1(2)" for a member of a control array; a menu
    /// entry's QAction for the main window's. nullptr when there is none.
    [[nodiscard]] QObject* control(std::string_view window, std::string_view name) const;
    /// The window loses the activation, as an event.
    void deactivate(std::string_view window);
    /// Loads a window without showing it. Part of a handler.
    void load(std::string_view window);
    /// Shows the session's structs in all loaded windows; pulls what was typed into them first.
    void refresh();

    void run(const std::function<void()>& handler) override;
    void run_alone(const std::function<void()>& handler) override;
    [[nodiscard]] bool idle() const override;
    void activate(std::string_view window) override;
    void focused(std::string_view window) override;
    void close(std::string_view window) override;

    void show(std::string_view window) override;
    void show_modal(std::string_view window) override;
    void unload(std::string_view window) override;
    void minimize(std::string_view window) override;
    void set_focus(std::string_view window, std::string_view control) override;
    void popup_menu(std::string_view menu) override;
    Form* form(std::string_view window) override;
    void status_changed() override;
    void pointer_changed() override;
    void yield() override;
    void wait(int milliseconds) override;
    void end_program() override;

  private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace velmora
