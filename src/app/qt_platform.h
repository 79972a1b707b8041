// Builds the program's platform from Qt, SQLite and the desktop. A part that stands empty can be
// filled before `install`, as the scenario driver does with what a person would answer.
#pragma once

#include "platform/platform.h"
#include "ui/window_host.h"

#include <memory>

namespace velmora {

class Autocad;
class ImageSurface;
class Printer;
class TextOutlines;

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
    std::unique_ptr<ImageSurface> pic; ///< drawn on by the logic, shown by the windows
    std::unique_ptr<Autocad> cad;
    std::unique_ptr<Printer> printer;
    std::unique_ptr<TextOutlines> text_outlines;
    std::unique_ptr<WindowHost> windows; ///< last: the windows go before what they show

    /// Sets the process's platform. Needs a QApplication.
    void install();
};

} // namespace velmora
