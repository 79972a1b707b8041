// Outlines that were drawn as bare points: a capture makes lines of them before its walk.
#pragma once

#include "document/state/cad.h"

namespace velmora {

/// Makes lines of the AcDbPoint elements of state::cad.ObjsCad until none is left: in effect a run
/// of n points becomes n - 1 lines. An element that stops a run is dropped, a real line too, on
/// purpose. Raises 9 when the list would shrink to nothing (a single point), and 6 when the list
/// comes back to a state it had before, from where the work would never end.
void PuntosALineas();

} // namespace velmora
