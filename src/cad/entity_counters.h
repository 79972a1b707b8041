// How many entities of each kind were taken, as the session holds and wininfo shows it, and how far
// the capture of one has come, in pbar2.
#pragma once

#include "document/obj_cad.h"

#include <cstdint>

namespace velmora {

/// The session's counters to 0; the boxes stay as they are.
void reset_entity_counters();
/// The boxes of the counters to "0".
void clear_entity_boxes();
/// The counters of the kinds and their boxes to 0; the total taken stays as it is.
void clear_entity_counts();
/// One entity more of a kind, with its box, and the total taken so far. Points count as lines.
void count_entity(TipoCad tipo, std::int32_t taken);

void start_entity_progress(double points);
/// One point more; the windows run.
void step_entity_progress();

} // namespace velmora
