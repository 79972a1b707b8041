// What a control shows: its caption, text or value; whether it is enabled, visible, checked.
#pragma once

#include <string>

class QObject;

namespace velmora::driver {

/// A ScriptFault for a control that shows no text.
[[nodiscard]] std::string text_shown(const QObject& control, const std::string& word);
[[nodiscard]] bool is_enabled(const QObject& control, const std::string& word);
[[nodiscard]] bool is_visible(const QObject& control);
/// A ScriptFault for a control that can't be checked.
[[nodiscard]] bool is_checked(const QObject& control, const std::string& word);

} // namespace velmora::driver
