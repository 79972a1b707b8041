// The literals of the windows by name, for the loads of windows.
#pragma once

#include <string_view>

namespace velmora {

/// AplicaLiterales for a window that is loaded; nothing where no window stands behind the logic.
void load_literals(std::string_view window);

} // namespace velmora
