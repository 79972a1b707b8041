#include "windows/window_texts.h"

#include "script/fault.h"
#include "ui/lamp.h"
#include "windows/controls.h"
#include "windows/menus.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QStatusBar>
#include <QTabWidget>
#include <array>
#include <optional>

namespace velmora::driver {

namespace {

using MaybeText = std::optional<QString>;

template <class Control, auto Read>
MaybeText read_as(const QObject& object) {
    const auto* control = qobject_cast<const Control*>(&object);
    if (control == nullptr)
        return {};
    return (control->*Read)();
}

MaybeText read_status_bar(const QObject& object) {
    const auto* bar = qobject_cast<const QStatusBar*>(&object);
    if (bar == nullptr)
        return {};
    const auto panels = bar->findChildren<QLabel*>(QString(), Qt::FindDirectChildrenOnly);
    return panels.isEmpty() ? QString() : panels.first()->text();
}

MaybeText read_tabs(const QObject& object) {
    const auto* tabs = qobject_cast<const QTabWidget*>(&object);
    if (tabs == nullptr)
        return {};
    return tabs->tabText(tabs->currentIndex());
}

MaybeText read_progress(const QObject& object) {
    const auto* bar = qobject_cast<const QProgressBar*>(&object);
    if (bar == nullptr)
        return {};
    return QString::number(bar->value());
}

/// The text of a list is that of its chosen row.
MaybeText read_list(const QObject& object) {
    const auto* list = qobject_cast<const QAbstractItemView*>(&object);
    if (list == nullptr)
        return {};
    return list->currentIndex().data().toString();
}

/// A lamp's value is its colour.
MaybeText read_lamp(const QObject& object) {
    const auto* lamp = qobject_cast<const Lamp*>(&object);
    if (lamp == nullptr)
        return {};
    return QString::number(lamp->colour());
}

MaybeText read_title(const QObject& object) {
    const auto* window = qobject_cast<const QWidget*>(&object);
    if (window == nullptr || !window->isWindow())
        return {};
    return window->windowTitle();
}

constexpr auto kReaders = std::to_array<MaybeText (*)(const QObject&)>({
    read_as<QLineEdit, &QLineEdit::text>,
    read_as<QComboBox, &QComboBox::currentText>,
    read_as<QAbstractButton, &QAbstractButton::text>,
    read_as<QLabel, &QLabel::text>,
    read_as<QGroupBox, &QGroupBox::title>,
    read_as<QAction, &QAction::text>,
    read_status_bar,
    read_tabs,
    read_progress,
    read_list,
    read_lamp,
    read_title,
});

} // namespace

std::string text_shown(const QObject& control, const std::string& word) {
    for (const auto read : kReaders)
        if (const MaybeText text = read(control))
            return text->toStdString();
    fault(word + " shows no text");
}

bool is_enabled(const QObject& control, const std::string& word) {
    if (const auto* entry = qobject_cast<const QAction*>(&control))
        return is_entry_enabled(*entry, control_name_of(word).control);
    const auto* widget = qobject_cast<const QWidget*>(&control);
    return widget != nullptr && widget->isEnabled();
}

bool is_visible(const QObject& control) {
    if (const auto* entry = qobject_cast<const QAction*>(&control))
        return entry->isVisible();
    const auto* widget = qobject_cast<const QWidget*>(&control);
    if (widget == nullptr)
        return false;
    return widget->isWindow() ? widget->isVisible() : widget->isVisibleTo(widget->window());
}

bool is_checked(const QObject& control, const std::string& word) {
    if (const auto* button = qobject_cast<const QAbstractButton*>(&control))
        return button->isChecked();
    if (const auto* entry = qobject_cast<const QAction*>(&control))
        return entry->isChecked();
    fault(word + " can't be checked");
}

} // namespace velmora::driver
