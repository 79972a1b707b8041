// The last step from a drawing: the chained entities become the outline.
#pragma once

#include "document/forma.h"
#include "document/state/cad.h"

namespace velmora {

/// Copies the points of state::cad.ObjsCad in chain order to Forma.Pto, drops the last one, whether
/// the shape closes or not, and empties the list. Own error route: the points placed so far and the
/// list stay. A chain position without an element raises 5 in it.
void OBJS2PTS();

} // namespace velmora
