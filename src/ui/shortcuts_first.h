// The menus' shortcuts in a text box that has a use of its own for the keys: Ctrl+A opens a file
// there too, as everywhere in the window.
#pragma once

#include <QObject>

class QLineEdit;

namespace velmora {

/// Leaves the keys that are a shortcut of the window to the shortcut.
class ShortcutsFirst : public QObject {
    Q_OBJECT
  public:
    explicit ShortcutsFirst(QLineEdit& box);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QLineEdit& box_;
};

} // namespace velmora
