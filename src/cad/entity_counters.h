// How many entities of each kind were taken, as the session holds and wininfo shows it.
#pragma once

#include "document/obj_cad.h"

#include <cstdint>

namespace velmora {

/// The session's counters to 0; the boxes stay as they are.
void reset_entity_counters();
/// The boxes of the counters to "0".
void clear_entity_boxes();
/// One entity more of a kind, with its box, and the total taken so far. Points count as lines.
void count_entity(TipoCad tipo, std::int32_t taken);

} // namespace velmora
