// The names of a window's controls. A member of a control array is a widget "Picture1_2" with the
// dynamic property Index 2, known as "Picture1(2)"; an action has the plain name and the property.
#pragma once

#include <QObject>
#include <optional>
#include <string>
#include <string_view>

namespace velmora {

inline constexpr auto kIndexProperty = "Index";

/// The control's own name, without its place in an array.
[[nodiscard]] std::string control_name(const QObject& control);
/// Its place in a control array.
[[nodiscard]] std::optional<int> control_index(const QObject& control);

/// The control of that name under `window`; nullptr when there is none. A top menu is found as the
/// action that opens it.
[[nodiscard]] QObject* find_control(const QObject& window, std::string_view name);

} // namespace velmora
