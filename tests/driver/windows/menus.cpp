#include "windows/menus.h"

#include "commands/command_table.h"
#include "document/session.h"
#include "script/fault.h"
#include "script/numbers.h"
#include "script/words.h"
#include "ui/window_host.h"
#include "windows/controls.h"

#include <QAction>

namespace velmora::driver {

namespace {

/// The row of the command table, by "NAME" or "NAME(INDEX)".
const MenuEntry& entry_of(const std::string& name) {
    const auto open = name.find('(');
    const bool indexed = open != std::string::npos && name.ends_with(')');
    const int index = indexed ? whole_number(name.substr(open + 1, name.size() - open - 2)) : 0;
    const MenuEntry* entry = find_menu_entry(indexed ? name.substr(0, open) : name, index);
    if (entry == nullptr || entry->handler == nullptr)
        fault("no menu entry " + word_text(name));
    return *entry;
}

} // namespace

bool is_entry_enabled(const QAction& entry, const std::string& name) {
    if (entry.isVisible())
        return entry.isEnabled();
    const auto found = session.Velmora.menus.find(name);
    return found == session.Velmora.menus.end() || found->second.enabled;
}

void click_menu(WindowHost& windows, Transcript& transcript, const std::string& name) {
    const MenuEntry& entry = entry_of(name);
    auto* action = qobject_cast<QAction*>(&find_control(windows, "Velmora." + name));
    if (action == nullptr)
        fault("no menu entry " + word_text(name));
    windows.refresh();
    if (!is_entry_enabled(*action, name))
        return transcript.line("disabled", name);
    if (action->isVisible())
        action->trigger();
    else
        windows.run(entry.handler);
}

} // namespace velmora::driver
