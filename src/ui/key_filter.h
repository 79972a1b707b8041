// The shared pieces of the text boxes: keys that are looked at before they type, and the focus that
// leaves a box.
#pragma once

#include <QObject>
#include <functional>

class QLineEdit;

namespace velmora {

/// Calls `handler` with the character of each key that types; it returns the character to take
/// instead, 0 to swallow the key. Keys that move, cut, copy or paste are no typing.
class KeyFilter : public QObject {
    Q_OBJECT
  public:
    KeyFilter(QLineEdit& box, std::function<int(int)> handler);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QLineEdit& box_;
    std::function<int(int)> handler_;
};

/// Calls `handler` when the focus went from the box to another control of its window. A button
/// whose press moved the focus is clicked afterwards, also where a message of the handler took the
/// release from it.
class LostFocusFilter : public QObject {
    Q_OBJECT
  public:
    LostFocusFilter(QLineEdit& box, std::function<void()> handler);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QLineEdit& box_;
    std::function<void()> handler_;
};

} // namespace velmora
