// The main window's menu entries, by the names of the command table. Qt takes an entry that does
// not show for disabled; the program does not.
#pragma once

#include "script/transcript.h"

#include <string>

class QAction;

namespace velmora {
class WindowHost;
}

namespace velmora::driver {

/// Whether the entry of this action, whatever shows of it, would work.
[[nodiscard]] bool is_entry_enabled(const QAction& entry, const std::string& name);

/// A click on an entry, "mnu_exit", "mnuRecentFile(3)"; a line when it is disabled. A ScriptFault
/// for what is no entry with a command.
void click_menu(WindowHost& windows, Transcript& transcript, const std::string& name);

} // namespace velmora::driver
