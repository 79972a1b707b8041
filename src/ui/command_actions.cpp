#include "ui/command_actions.h"

#include "commands/command_table.h"
#include "toolkit/qt_text.h"
#include "ui/controls.h"
#include "ui/icons.h"

#include <QBoxLayout>
#include <QFrame>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>
#include <algorithm>

namespace velmora {

namespace {

constexpr int kSmallestIcon = 24;
constexpr std::string_view kRecentFile = "mnuRecentFile";
constexpr std::string_view kRecentFileSep = "mnuRecentFileSep";

bool is_separator(const MenuEntry& row) {
    return row.caption == "-";
}

bool is_visible(const MenuEntry& row, const VelmoraWindow& state) {
    if (row.name == kRecentFileSep)
        return state.mnuRecentFileSep_visible;
    if (row.name == kRecentFile)
        return state.mnuRecentFile.at(static_cast<std::size_t>(row.index)).visible;
    const auto changed = state.menus.find(row.name);
    // What the table hides stays hidden.
    return row.visible && (changed == state.menus.end() || changed->second.visible);
}

bool is_enabled(const MenuEntry& row, const VelmoraWindow& state) {
    const auto changed = state.menus.find(row.name);
    return changed == state.menus.end() || changed->second.enabled;
}

/// Icons grow with the desktop's text.
int icon_size(const QWidget& window) {
    return std::max(kSmallestIcon, window.fontMetrics().height() * 3 / 2);
}

void add_line(QBoxLayout& bands) {
    auto* line = new QFrame(bands.parentWidget());
    line->setFrameShape(QFrame::VLine);
    line->setFrameShadow(QFrame::Sunken);
    line->setFixedHeight(icon_size(*line));
    bands.addWidget(line, 0, Qt::AlignVCenter);
}

} // namespace

CommandActions::CommandActions(QMainWindow& window, std::function<void(void (*)())> run)
    : window_(window), run_(std::move(run)) {}

void CommandActions::add_menus() {
    for (const MenuEntry& row : menu_entries()) {
        if (row.menu.empty())
            add_top_menu(row);
        else if (auto* menu = window_.findChild<QMenu*>(qt_text(row.menu)))
            add_entry(*menu, row);
    }
}

void CommandActions::add_top_menu(const MenuEntry& row) {
    auto* menu = new QMenu(qt_text(row.caption), &window_);
    menu->setObjectName(qt_text(row.name));
    menu->setToolTipsVisible(true); // of the entries that have one: the recent files their path
    menu->menuAction()->setObjectName(qt_text(row.name));
    if (row.visible)
        window_.menuBar()->addMenu(menu);
    keep(*menu->menuAction(), row);
}

void CommandActions::add_entry(QMenu& menu, const MenuEntry& row) {
    auto* action = is_separator(row) ? menu.addSeparator() : menu.addAction(qt_text(row.caption));
    action->setObjectName(qt_text(row.name));
    if (row.index > 0)
        action->setProperty(kIndexProperty, row.index);
    if (!row.shortcut.empty()) {
        action->setShortcut(QKeySequence(qt_text(row.shortcut), QKeySequence::PortableText));
        // The point menu and the side windows have keys of their own.
        action->setShortcutContext(Qt::WindowShortcut);
    }
    action->setCheckable(row.checked != nullptr);
    if (row.handler != nullptr)
        QObject::connect(action, &QAction::triggered, &window_,
                         [this, handler = row.handler] { run_(handler); });
    keep(*action, row);
}

void CommandActions::keep(QAction& action, const MenuEntry& row) {
    entries_.push_back({&action, &row});
    if (row.name.empty())
        return;
    std::string control(row.name);
    if (row.index > 0)
        control.append("(").append(std::to_string(row.index)).append(")");
    menu_controls_.push_back(std::move(control));
}

void CommandActions::add_bars(QBoxLayout& bands) {
    for (const ToolKey& key : tool_keys()) {
        QToolBar& bar = bar_of(key, bands);
        QAction* action = bar.addAction(qt_text(key.tip));
        action->setObjectName(qt_text(key.key));
        action->setToolTip(qt_text(key.tip));
        bar.widgetForAction(action)->setAccessibleName(qt_text(key.tip));
        QObject::connect(action, &QAction::triggered, &window_,
                         [this, handler = key.handler] { run_(handler); });
    }
    draw_icons();
}

QToolBar& CommandActions::bar_of(const ToolKey& key, QBoxLayout& bands) {
    if (auto* bar = window_.findChild<QToolBar*>(qt_text(key.bar)))
        return *bar;
    if (bands.count() > 0)
        add_line(bands);
    auto* bar = new QToolBar(bands.parentWidget());
    bar->setObjectName(qt_text(key.bar));
    bar->setIconSize({icon_size(*bar), icon_size(*bar)});
    bar->setToolButtonStyle(Qt::ToolButtonIconOnly);
    bands.addWidget(bar);
    return *bar;
}

void CommandActions::show(const VelmoraWindow& state) const {
    for (const auto& [action, row] : entries_) {
        if (row->name == kRecentFile) {
            const auto& recent = state.mnuRecentFile.at(static_cast<std::size_t>(row->index));
            action->setText(QString::fromStdString(recent.caption));
            action->setToolTip(QString::fromStdString(recent.path));
        }
        if (row->checked != nullptr)
            action->setChecked(row->checked());
        action->setVisible(is_visible(*row, state));
        action->setEnabled(is_enabled(*row, state));
    }
}

void CommandActions::draw_icons() const {
    for (const ToolKey& key : tool_keys())
        if (auto* action = window_.findChild<QAction*>(qt_text(key.key)))
            action->setIcon(tool_icon(key.key, window_.palette()));
}

} // namespace velmora
