// The literals of the windows by name, for the loads of windows.
#pragma once

#include <string>
#include <string_view>

namespace velmora {

/// AplicaLiterales for a window that is loaded; nothing where the logic runs without windows.
void load_literals(std::string_view window);

/// The caption of a control of a loaded window as it is shown; empty where there is none.
[[nodiscard]] std::string caption_of(std::string_view window, std::string_view control);

} // namespace velmora
