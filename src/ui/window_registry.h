// All windows by name. A new window is one line in window_registry.cpp.
#pragma once

#include <functional>
#include <memory>
#include <string_view>
#include <vector>

namespace velmora {

class EventSink;
class ShownImage;
class Window;
struct SideGround;

/// What the windows are made over; each takes what it needs.
struct Surroundings {
    EventSink& events;
    ShownImage& canvas;
    SideGround& beside;
    std::function<void(std::string_view window)> load; ///< without showing it; part of a handler
};

/// A new window, its controls as designed; nullptr for a name that no window has.
[[nodiscard]] std::unique_ptr<Window> make_window(std::string_view name,
                                                  const Surroundings& around);

[[nodiscard]] std::vector<std::string_view> window_names();

} // namespace velmora
