// What the logic asks of the machine: references to abstract services, set once at start. The
// program sets the real ones, unit tests set recording ones, the scenario driver scripted ones.
#pragma once

namespace velmora {

class Dialogs;
class ProgramWindows;
class Shell;
class SettingsStore;
class Database;
class Clock;
class Machine;
class Surface;
class Autocad;
class Previews;
class Printer;
class TextOutlines;

struct Platform {
    Dialogs& dialogs;
    ProgramWindows& windows;
    Shell& shell;
    SettingsStore& settings;
    Database& database;
    Clock& clock;
    Machine& machine;
    Surface& pic; ///< drawing operations of the canvas
    Autocad& cad;
    Previews* previews = nullptr; ///< of the adjustment; null while its window is shut
    Printer* printer = nullptr;
    TextOutlines* text_outlines = nullptr;
};

void set_platform(const Platform& services);
/// The adjustment's window opens or shuts; the rest stays.
void set_previews(Previews* pictures);
[[nodiscard]] const Platform& platform();

} // namespace velmora
