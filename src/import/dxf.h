// Drawings in DXF of any version since R10, as text or binary.
#pragma once

#include "import/drawing.h"
#include "import/imported.h"

#include <string_view>

namespace velmora::imports {

/// The pieces of what is drawn in the model, blocks put in, curves flattened to the tolerance. What
/// is left out is reported: other kinds of entities, the paper, invisible entities, layers that are
/// off or frozen (unless they are chosen). Areas are drawn only where there is nothing else.
[[nodiscard]] Drawing read_dxf(std::string_view bytes, double tolerance, const Choices& choices,
                               Report& report);

} // namespace velmora::imports
