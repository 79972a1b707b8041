// The shared pieces of the text boxes: characters that are looked at before they come in, whichever
// way, and the focus that leaves a box.
#pragma once

#include <QObject>
#include <functional>

class QContextMenuEvent;
class QDropEvent;
class QInputMethodEvent;
class QKeyEvent;
class QLineEdit;
class QMouseEvent;

namespace velmora {

/// Calls `handler` with each character that comes into a box: typed, composed by a dead key or an
/// input method, pasted or dropped. It returns the character to take instead, 0 to refuse it; a
/// text with a refused character is refused whole. What is pasted or dropped is taken without the
/// line end that a whole line brings along. Keys that move, cut or copy are not typing.
class KeyFilter : public QObject {
    Q_OBJECT
  public:
    KeyFilter(QLineEdit& box, std::function<int(int)> handler);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    enum class Outcome { same, other, refused, gone };
    struct Taken {
        Outcome outcome;
        QString text;
    };

    bool key(QKeyEvent& event);
    bool composed(QInputMethodEvent& event);
    bool released(const QMouseEvent& event);
    bool dropped(QDropEvent& event);
    bool menu_asked(const QContextMenuEvent& event);
    [[nodiscard]] Taken take(const QString& text);
    void insert(const QString& text);

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
