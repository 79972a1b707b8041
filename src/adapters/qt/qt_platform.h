// Builds the program's platform from Qt, SQLite and the desktop. Any part can be put in another's
// place before `install`, as the scenario driver does with what a person would answer.
#pragma once

#include "platform/platform.h"
#include "ui/windows_host.h"

#include <memory>
#include <string>

namespace velmora {

class Autocad;

/// Owns the services. The members that are null at `install` are filled with the real ones.
struct QtPlatform {
    QtPlatform();
    ~QtPlatform();

    std::unique_ptr<Dialogs> dialogs;
    std::unique_ptr<Shell> shell;
    std::unique_ptr<SettingsStore> settings;
    std::unique_ptr<Database> database;
    std::unique_ptr<Machine> machine;
    std::unique_ptr<Clock> clock;
    std::unique_ptr<Surface> pic;
    std::unique_ptr<Autocad> cad;
    std::unique_ptr<WindowsHost> windows;

    /// Sets the process's platform. Needs a QApplication.
    void install();
};

/// The program's folder: that of the executable when the language database lies there and can be
/// written, else the user's data folder for the application, filled from there at the first start.
[[nodiscard]] std::string find_program_folder();

} // namespace velmora
