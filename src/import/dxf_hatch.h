// The loops round a hatched area, by the numbers of its entity in their order: each is a polyline
// or a run of lines, arcs and splines.
#pragma once

#include "import/dxf_shapes.h"

#include <vector>

namespace velmora::imports {

/// Closed shapes of an area; none where the numbers break off. Layer and line are left to the
/// caller.
[[nodiscard]] std::vector<DxfShape> hatch_loops(const DxfEntity& entity);

} // namespace velmora::imports
