// The user's settings in the desktop's own store.
#pragma once

#include "platform/settings_store.h"

#include <memory>
#include <string>

namespace velmora {

/// The store of the application "Velmora" in the user's configuration.
[[nodiscard]] std::unique_ptr<SettingsStore> make_qt_settings();
/// A store of its own in a file.
[[nodiscard]] std::unique_ptr<SettingsStore> make_file_settings(const std::string& path);

} // namespace velmora
