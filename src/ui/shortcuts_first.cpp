#include "ui/shortcuts_first.h"

#include <QAction>
#include <QKeyEvent>
#include <QLineEdit>
#include <algorithm>

namespace velmora {

ShortcutsFirst::ShortcutsFirst(QLineEdit& box) : QObject(&box), box_(box) {
    box_.installEventFilter(this);
}

bool ShortcutsFirst::eventFilter(QObject*, QEvent* event) {
    if (event->type() != QEvent::ShortcutOverride)
        return false;
    const QKeySequence keys(static_cast<QKeyEvent&>(*event).keyCombination());
    const auto actions = box_.window()->findChildren<QAction*>();
    const bool taken = std::any_of(actions.begin(), actions.end(), [&](const QAction* action) {
        return action->isEnabled() && action->shortcut() == keys;
    });
    if (taken)
        event->ignore();
    return taken;
}

} // namespace velmora
