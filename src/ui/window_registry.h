// All windows by name. A new window is one line in window_registry.cpp.
#pragma once

#include <memory>
#include <string_view>
#include <vector>

namespace velmora {

class Window;
class WindowHost;

/// A new window, its controls as designed; nullptr for a name that no window has.
[[nodiscard]] std::unique_ptr<Window> make_window(std::string_view name, WindowHost& host);

[[nodiscard]] std::vector<std::string_view> window_names();

} // namespace velmora
