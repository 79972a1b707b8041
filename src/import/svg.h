// Drawings in SVG: paths and shapes with their transforms.
#pragma once

#include "import/drawing.h"
#include "import/imported.h"

#include <string_view>

namespace velmora::imports {

/// In the user units of the outermost element, Y upwards; what they are in millimetres follows from
/// its size and view box. `size_known` is false where it names no length.
[[nodiscard]] Drawing read_svg(std::string_view text, double tolerance, Report& report,
                               bool& size_known);

} // namespace velmora::imports
