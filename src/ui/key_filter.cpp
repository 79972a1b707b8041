#include "ui/key_filter.h"

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QPointer>
#include <memory>

namespace velmora {

namespace {

constexpr int kBackspace = 8;
constexpr int kEnter = 13;
constexpr char32_t kFirstPrintable = 32;

/// A key that edits the box and is a character of its own, 0 for any other.
int editing_character(const QKeyEvent& event) {
    if (event.key() == Qt::Key_Backspace)
        return kBackspace;
    if (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter)
        return kEnter;
    return 0;
}

/// The box itself would type the text of this key, as the toolkit decides it: with Ctrl alone, or
/// Ctrl and Shift, it would not; with Alt it would, where no shortcut takes the key first.
bool types_text(const QKeyEvent& event) {
    if (event.text().isEmpty())
        return false;
    const QChar first = event.text().at(0);
    if (first.category() == QChar::Other_Format)
        return true;
    const Qt::KeyboardModifiers held = event.modifiers();
    if (held == Qt::ControlModifier || held == (Qt::ControlModifier | Qt::ShiftModifier))
        return false;
    return first.isPrint() || first.isSurrogate() || first.category() == QChar::Other_PrivateUse;
}

/// What a character of a text is to the handler. Control characters are not keys here: a pasted
/// line end is not Enter.
int code_of(char32_t character) {
    return character < kFirstPrintable ? 0 : static_cast<int>(character);
}

/// A cell of a sheet or a line of an editor ends in one or more of them.
QString without_line_end(QString text) {
    while (text.endsWith('\n') || text.endsWith('\r'))
        text.chop(1);
    return text;
}

bool pastes_selection(const QKeyEvent& event) {
    constexpr auto both = Qt::ControlModifier | Qt::ShiftModifier;
    return event.key() == Qt::Key_Insert && (event.modifiers() & both) == both &&
           QApplication::clipboard()->supportsSelection();
}

/// The entry of a box's own menu that pastes.
QAction* paste_entry(const QMenu& menu) {
    const QString name = QLineEdit::tr("&Paste"); // the shortcut follows a tab
    for (QAction* entry : menu.actions())
        if (entry->text().section('\t', 0, 0) == name)
            return entry;
    return nullptr;
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
    switch (event->type()) {
    case QEvent::KeyPress:
        return key(static_cast<QKeyEvent&>(*event));
    case QEvent::InputMethod:
        return composed(static_cast<QInputMethodEvent&>(*event));
    case QEvent::MouseButtonRelease:
        return released(static_cast<QMouseEvent&>(*event));
    case QEvent::Drop:
        return dropped(static_cast<QDropEvent&>(*event));
    case QEvent::ContextMenu:
        return menu_asked(static_cast<QContextMenuEvent&>(*event));
    default:
        return false;
    }
}

bool KeyFilter::key(QKeyEvent& event) {
    if (event.matches(QKeySequence::Paste)) {
        insert(QApplication::clipboard()->text(pastes_selection(event) ? QClipboard::Selection
                                                                       : QClipboard::Clipboard));
        return true;
    }
    if (const int code = editing_character(event)) {
        const QPointer<QObject> alive(this);
        return handler_(code) == 0 || !alive;
    }
    if (!types_text(event))
        return false;
    const Taken taken = take(event.text());
    if (taken.outcome == Outcome::other)
        box_.insert(taken.text);
    return taken.outcome != Outcome::same;
}

/// The rest of the event goes on where its text is refused, so that nothing half composed stays.
bool KeyFilter::composed(QInputMethodEvent& event) {
    if (event.commitString().isEmpty())
        return false;
    const Taken taken = take(event.commitString());
    if (taken.outcome == Outcome::refused)
        event.setCommitString({});
    else if (taken.outcome == Outcome::other)
        event.setCommitString(taken.text, event.replacementStart(), event.replacementLength());
    return taken.outcome == Outcome::gone;
}

/// The middle button pastes what is selected anywhere.
bool KeyFilter::released(const QMouseEvent& event) {
    const QClipboard& clipboard = *QApplication::clipboard();
    if (event.button() != Qt::MiddleButton || !clipboard.supportsSelection())
        return false;
    box_.deselect();
    insert(clipboard.text(QClipboard::Selection));
    return true;
}

/// The desktop waits for the end of the drop, and a message would hold it up: the text comes in
/// after it. What is moved inside the box is not new text.
bool KeyFilter::dropped(QDropEvent& event) {
    if (event.source() == &box_ || !event.mimeData()->hasText())
        return false;
    event.setDropAction(Qt::CopyAction);
    event.accept();
    box_.setCursorPosition(box_.cursorPositionAt(event.position().toPoint()));
    const QString text = event.mimeData()->text();
    QMetaObject::invokeMethod(
        this, [this, text] { insert(text); }, Qt::QueuedConnection);
    return true;
}

bool KeyFilter::menu_asked(const QContextMenuEvent& event) {
    QMenu* menu = box_.createStandardContextMenu();
    if (menu == nullptr)
        return false;
    menu->setAttribute(Qt::WA_DeleteOnClose);
    if (QAction* paste = paste_entry(*menu)) {
        paste->disconnect(&box_);
        connect(paste, &QAction::triggered, this,
                [this] { insert(QApplication::clipboard()->text()); });
    }
    menu->popup(event.globalPos());
    return true;
}

KeyFilter::Taken KeyFilter::take(const QString& text) {
    const QPointer<QObject> alive(this);
    QString taken;
    for (const char32_t character : text.toUcs4()) {
        const int code = handler_(code_of(character));
        if (!alive)
            return {Outcome::gone, {}};
        if (code == 0)
            return {Outcome::refused, {}};
        taken += QChar::fromUcs4(static_cast<char32_t>(code));
    }
    return {taken == text ? Outcome::same : Outcome::other, taken};
}

void KeyFilter::insert(const QString& text) {
    const Taken taken = take(without_line_end(text));
    if (taken.outcome == Outcome::same || taken.outcome == Outcome::other)
        box_.insert(taken.text);
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
