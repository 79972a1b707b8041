#include "ui/key_filter.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPointer>

namespace velmora {

namespace {

constexpr int kBackspace = 8;
constexpr int kEnter = 13;

/// The character that a key types, 0 for none.
int typed_character(const QKeyEvent& event) {
    if (event.key() == Qt::Key_Backspace)
        return kBackspace;
    if (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter)
        return kEnter;
    const bool command =
        event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    const bool composed = event.modifiers() & Qt::GroupSwitchModifier;
    if (event.text().isEmpty() || (command && !composed))
        return 0;
    const QChar character = event.text().at(0);
    return character.isPrint() ? character.unicode() : 0;
}

/// A button that is down although no mouse button is: a message box took its release.
void finish_click(QAbstractButton& button) {
    if (!button.isDown() || QApplication::mouseButtons().testFlag(Qt::LeftButton))
        return;
    button.setDown(false);
    button.click();
}

} // namespace

KeyFilter::KeyFilter(QLineEdit& box, std::function<int(int)> handler)
    : QObject(&box), box_(box), handler_(std::move(handler)) {
    box_.installEventFilter(this);
}

bool KeyFilter::eventFilter(QObject*, QEvent* event) {
    if (event->type() != QEvent::KeyPress)
        return false;
    const int typed = typed_character(static_cast<QKeyEvent&>(*event));
    if (typed == 0)
        return false;
    const QPointer<QObject> alive(this);
    const int taken = handler_(typed);
    if (!alive || taken == 0)
        return true;
    if (taken == typed)
        return false;
    box_.insert(QChar(taken));
    return true;
}

LostFocusFilter::LostFocusFilter(QLineEdit& box, std::function<void()> handler)
    : QObject(&box), box_(box), handler_(std::move(handler)) {
    box_.installEventFilter(this);
}

bool LostFocusFilter::eventFilter(QObject*, QEvent* event) {
    if (event->type() != QEvent::FocusOut)
        return false;
    QWidget* now = QApplication::focusWidget();
    if (now == nullptr || now == &box_ || now->window() != box_.window())
        return false;
    const QPointer<QAbstractButton> pressed(qobject_cast<QAbstractButton*>(now));
    const bool by_mouse = static_cast<QFocusEvent&>(*event).reason() == Qt::MouseFocusReason;
    handler_();
    if (by_mouse && pressed)
        QMetaObject::invokeMethod(
            pressed, [pressed] { finish_click(*pressed); }, Qt::QueuedConnection);
    return false;
}

} // namespace velmora
