#include "ui/controls.h"

#include <QMenu>
#include <QVariant>
#include <charconv>

namespace velmora {

namespace {

struct ControlKey {
    std::string name;
    std::optional<int> index;
};

ControlKey key_of(std::string_view text) {
    const auto open = text.find('(');
    if (open == text.npos || text.back() != ')')
        return {std::string(text), {}};
    int index = 0;
    const auto digits = text.substr(open + 1, text.size() - open - 2);
    const auto end = digits.data() + digits.size();
    const auto read = std::from_chars(digits.data(), end, index);
    if (read.ec != std::errc() || read.ptr != end)
        return {std::string(text), {}};
    return {std::string(text.substr(0, open)), index};
}

QObject* reachable(QObject* found) {
    auto* menu = qobject_cast<QMenu*>(found);
    return menu != nullptr ? menu->menuAction() : found;
}

QObject* find_named(const QObject& window, const QString& name, std::optional<int> index) {
    for (QObject* found : window.findChildren<QObject*>(name))
        if (!index || control_index(*found) == index)
            return reachable(found);
    return nullptr;
}

} // namespace

std::optional<int> control_index(const QObject& control) {
    const QVariant index = control.property(kIndexProperty);
    if (!index.isValid())
        return {};
    return index.toInt();
}

std::string control_name(const QObject& control) {
    QString name = control.objectName();
    if (const auto index = control_index(control)) {
        const QString suffix = QStringLiteral("_%1").arg(*index);
        if (name.endsWith(suffix))
            name.chop(suffix.size());
    }
    return name.toStdString();
}

QObject* find_control(const QObject& window, std::string_view name) {
    const ControlKey key = key_of(name);
    const QString base = QString::fromStdString(key.name);
    if (!key.index)
        return find_named(window, base, {});
    if (QObject* widget =
            find_named(window, QStringLiteral("%1_%2").arg(base).arg(*key.index), key.index))
        return widget;
    return find_named(window, base, key.index);
}

} // namespace velmora
