// The one table of commands: menus, tool bars and shortcuts are built from it, the scenario driver
// calls from it.
#pragma once

#include <span>
#include <string_view>

namespace velmora {

/// One line of a menu. A top menu has no `menu`; a separator has the caption "-" and may have a
/// name; `index` above 0 is a place in a control array.
struct MenuEntry {
    std::string_view menu; ///< name of the top menu that holds it
    std::string_view name;
    std::string_view caption;
    std::string_view shortcut; ///< "Ctrl+F12", empty for none
    void (*handler)() = nullptr;
    bool visible = true;
    int index = 0;
    bool (*checked)() = nullptr; ///< of an entry with a tick
};

struct ToolKey {
    std::string_view bar;
    std::string_view key; ///< "K_EXIT"; its icon has the same name
    std::string_view tip;
    void (*handler)() = nullptr;
};

/// In the order of the menus; a top menu comes before its lines. OPT_PTO is the canvas's pop-up and
/// stays out of the menu bar.
[[nodiscard]] std::span<const MenuEntry> menu_entries();
/// In the order of the bars.
[[nodiscard]] std::span<const ToolKey> tool_keys();

/// The entry of a name and place, nullptr when there is none.
[[nodiscard]] const MenuEntry* find_menu_entry(std::string_view name, int index = 0);
[[nodiscard]] const ToolKey* find_tool_key(std::string_view key);

} // namespace velmora
