// The last ten files, newest first: in the settings store, and in the menu.
#pragma once

#include <string_view>

namespace velmora {

/// Builds the menu's entries from the store.
void GetRecentFiles();
/// Puts the path on top, or moves it there when an entry has exactly this path. An empty one does
/// nothing.
void UpdateFileMenu(std::string_view path);

} // namespace velmora
