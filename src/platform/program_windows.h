// The program's windows as the logic knows them: by name.
#pragma once

#include <string_view>

namespace velmora {

class Form;

class ProgramWindows {
  public:
    virtual ~ProgramWindows() = default;
    /// Loads the window if need be, shows it, brings it to the front.
    virtual void show(std::string_view window) = 0;
    /// Shows it and returns when it was unloaded.
    virtual void show_modal(std::string_view window) = 0;
    virtual void unload(std::string_view window) = 0;
    virtual void minimize(std::string_view window) = 0;
    /// Gives a control of a window the focus.
    virtual void set_focus(std::string_view window, std::string_view control) = 0;
    /// Opens a pop-up menu of the main window at the pointer, once the present handler has
    /// returned.
    virtual void popup_menu(std::string_view menu) = 0;
    /// The window as its literals see it; nullptr while it is not loaded.
    virtual Form* form(std::string_view window) = 0;

    /// The first panel and the screen's pointer were set; the session holds the values.
    virtual void status_changed() = 0;
    virtual void pointer_changed() = 0;

    /// Lets pending events run, at most some 60 times a second; cheap otherwise.
    virtual void yield() = 0;
    /// Runs pending events for the given time.
    virtual void wait(int milliseconds) = 0;
    /// Ends the program once the present handler returns.
    virtual void end_program() = 0;
};

} // namespace velmora
