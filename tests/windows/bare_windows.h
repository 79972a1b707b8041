// What windows are made over where no program runs them: they stand as designed.
#pragma once

#include "adapters/qt/image_surface.h"
#include "ui/side_ground.h"
#include "ui/window_host.h"
#include "ui/window_registry.h"

namespace velmora::test {

struct BareWindows {
    ImageSurface image;
    WindowHost host{image};
    SideGround ground{.main_window = [] { return static_cast<QWidget*>(nullptr); }, .places = {}};
    Surroundings around{host, image, ground, [](std::string_view) {
                        }};
};

} // namespace velmora::test
