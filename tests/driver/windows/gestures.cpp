#include "windows/gestures.h"

#include "script/fault.h"
#include "script/words.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPointer>
#include <QRadioButton>
#include <QStyle>
#include <QStyleOptionButton>
#include <QTabBar>
#include <QTabWidget>

// The toolkit's own way from a key to its shortcuts, as its test library uses it.
Q_GUI_EXPORT bool qt_sendShortcutOverrideEvent(QObject* target, ulong timestamp, int key,
                                               Qt::KeyboardModifiers modifiers, const QString& text,
                                               bool repeats, ushort count);

namespace velmora::driver {

namespace {

/// A modifier's own release tells that it is up.
Qt::KeyboardModifiers after_release(const Key& key) {
    return is_modifier(key) ? Qt::KeyboardModifiers() : key.modifiers;
}

void send_mouse(QWidget& control, QEvent::Type type, QPointF place, Qt::MouseButton button,
                Qt::MouseButtons held, Qt::KeyboardModifiers modifiers = {}) {
    QMouseEvent event(type, place, control.mapToGlobal(place), button, held, modifiers);
    QApplication::sendEvent(&control, &event);
}

void click_at(QWidget& control, QPointF place) {
    if (!control.isEnabled())
        return;
    const QPointer<QWidget> alive(&control);
    focus_by_click(control);
    if (alive)
        send_mouse(control, QEvent::MouseButtonPress, place, Qt::LeftButton, Qt::LeftButton);
    if (alive)
        send_mouse(control, QEvent::MouseButtonRelease, place, Qt::LeftButton, Qt::NoButton);
}

/// A check box takes clicks on its mark and its caption, not on the room beside them.
QPointF clickable_place(const QWidget& control) {
    QStyleOptionButton option;
    option.initFrom(&control);
    if (qobject_cast<const QCheckBox*>(&control) != nullptr)
        return control.style()
            ->subElementRect(QStyle::SE_CheckBoxIndicator, &option, &control)
            .center();
    if (qobject_cast<const QRadioButton*>(&control) != nullptr)
        return control.style()
            ->subElementRect(QStyle::SE_RadioButtonIndicator, &option, &control)
            .center();
    return control.rect().center();
}

/// Where a person types: the box itself, or that of a list that can be typed into.
QLineEdit* text_box(QWidget& control) {
    if (auto* list = qobject_cast<QComboBox*>(&control))
        return list->lineEdit();
    return qobject_cast<QLineEdit*>(&control);
}

void paste_into(QLineEdit& box, const QString& text) {
    if (box.isReadOnly() || !box.isEnabled())
        return;
    box.selectAll();
    box.insert(text);
}

void choose(QComboBox& box, const QString& text) {
    if (!box.isEnabled())
        return;
    const int entry = box.findText(text);
    if (entry < 0)
        fault("no entry " + word_text(text.toStdString()));
    box.setCurrentIndex(entry);
    emit box.activated(entry);
    emit box.textActivated(text);
}

} // namespace

void focus_by_click(QWidget& control) {
    for (QWidget* widget = &control; widget != nullptr; widget = widget->parentWidget()) {
        if (widget->isEnabled() && (widget->focusPolicy() & Qt::ClickFocus) != 0)
            return widget->setFocus(Qt::MouseFocusReason);
        if (widget->isWindow())
            return;
    }
}

void press_key(QWidget& control, const Key& key) {
    const QPointer<QWidget> alive(&control);
    if (qt_sendShortcutOverrideEvent(&control, 0, key.code, key.modifiers, key.text, false, 1) ||
        !alive)
        return;
    QKeyEvent press(QEvent::KeyPress, key.code, key.modifiers, key.text);
    QApplication::sendEvent(&control, &press);
}

void release_key(QWidget& control, const Key& key) {
    QKeyEvent release(QEvent::KeyRelease, key.code, after_release(key), key.text);
    QApplication::sendEvent(&control, &release);
}

void type_text(QWidget& control, const std::string& text) {
    const QPointer<QWidget> alive(&control);
    if (QLineEdit* box = text_box(control))
        box->end(false);
    for (const Key& key : keys_of_text(text)) {
        if (alive)
            press_key(control, key);
        if (alive)
            release_key(control, key);
    }
}

void paste_text(QWidget& control, const std::string& text) {
    const QString pasted = QString::fromStdString(text);
    if (QLineEdit* box = text_box(control))
        return paste_into(*box, pasted);
    if (auto* box = qobject_cast<QComboBox*>(&control))
        return choose(*box, pasted);
    fault(control.objectName().toStdString() + " takes no text");
}

void click(QWidget& control) {
    click_at(control, clickable_place(control));
}

void click_tab(QTabWidget& tabs, int tab) {
    if (tab >= tabs.count())
        fault("no tab " + std::to_string(tab));
    click_at(*tabs.tabBar(), tabs.tabBar()->tabRect(tab).center());
}

void click_row(QAbstractItemView& list, int row) {
    const QModelIndex index = list.model()->index(row, 0);
    if (!index.isValid())
        fault("no row " + std::to_string(row));
    list.scrollTo(index);
    click_at(*list.viewport(), list.visualRect(index).center());
}

void pointer(QWidget& canvas, PointerStep step, Qt::MouseButton button, QPointF place, bool ctrl) {
    const auto modifiers = ctrl ? Qt::ControlModifier : Qt::NoModifier;
    switch (step) {
    case PointerStep::down:
        focus_by_click(canvas);
        return send_mouse(canvas, QEvent::MouseButtonPress, place, button, button, modifiers);
    case PointerStep::move:
        return send_mouse(canvas, QEvent::MouseMove, place, Qt::NoButton, button, modifiers);
    case PointerStep::up:
        return send_mouse(canvas, QEvent::MouseButtonRelease, place, button, Qt::NoButton,
                          modifiers);
    }
}

} // namespace velmora::driver
