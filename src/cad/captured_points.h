// One entity of a model space as a run of points.
#pragma once

#include "cad/autocad.h"
#include "document/obj_cad.h"

namespace velmora {

/// The points of an entity of one of the six kinds, each coordinate with 15 significant digits. An
/// arc and a circle first ask for their number of points while it is too small, and the answer
/// stays. Raises what the entity raises, 9 for a coordinate that is missing or a polyline without
/// vertices, 6 for a coordinate too large for its text, and as capture_spline does.
[[nodiscard]] Array<Pto> captured_points(AcadEntity& entity, TipoCad tipo);

} // namespace velmora
