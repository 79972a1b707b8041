// The menus, the point menu and the tool bars, built from the command table; and the state that the
// logic gives their entries.
#pragma once

#include "document/windows/velmora.h"

#include <functional>
#include <string>
#include <vector>

class QAction;
class QBoxLayout;
class QMainWindow;
class QMenu;
class QToolBar;

namespace velmora {

struct MenuEntry;
struct ToolKey;

class CommandActions {
  public:
    /// `run` is called with the handler of a command that was chosen.
    CommandActions(QMainWindow& window, std::function<void(void (*)())> run);

    void add_menus();
    /// The bars are put into `bands`, in the table's order.
    void add_bars(QBoxLayout& bands);

    /// The entries as controls of the form: "mnu_openfile", "mnuRecentFile(1)".
    [[nodiscard]] const std::vector<std::string>& menu_controls() const { return menu_controls_; }

    /// Enabled and visible entries, the recent files.
    void show(const VelmoraWindow& state) const;
    /// Icons in the colours of the window's palette.
    void draw_icons() const;

  private:
    struct Entry {
        QAction* action;
        const MenuEntry* row;
    };

    void add_top_menu(const MenuEntry& row);
    void add_entry(QMenu& menu, const MenuEntry& row);
    void keep(QAction& action, const MenuEntry& row);
    QToolBar& bar_of(const ToolKey& key, QBoxLayout& bands);

    QMainWindow& window_;
    std::function<void(void (*)())> run_;
    std::vector<Entry> entries_;
    std::vector<std::string> menu_controls_;
};

} // namespace velmora
