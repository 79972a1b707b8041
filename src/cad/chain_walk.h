// The walks that put the entities of state::cad.ObjsCad in the order of the cut, each source its
// own. Both set Usado and Orden and turn entities round; OBJS2PTS follows.
#pragma once

#include "document/state/cad.h"

#include <cstdint>
#include <functional>
#include <optional>

namespace velmora {

/// The walk of a DXF load: from element 0 as drawn. What can't be chained while others are left is
/// given up silently and keeps its Orden of 0, on purpose. Raises 9 for an element without points.
void walk_dxf();

/// The walk of a capture, from (CadOrigX, CadOrigY). `model_space_count` is the number of entities
/// in the drawing, taken or not. Each incoherent entity goes to `colour_incoherent` by its index in
/// the list. Returns the number of incoherent entities; nothing after message 22, with the list as
/// it was, when no entity holds the origin.
[[nodiscard]] std::optional<std::int32_t>
walk_capture(std::int32_t model_space_count,
             const std::function<void(std::int32_t)>& colour_incoherent);

} // namespace velmora
