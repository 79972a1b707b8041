// Which end goes on into which: in places where two pieces meet, where more do, and across gaps.
#pragma once

#include "import/piece_ends.h"
#include "import/report.h"

#include <vector>

namespace velmora::imports {

/// The end that each end goes on into, `no_end` where there is none. Reports the places where more
/// than two meet.
[[nodiscard]] std::vector<End> joints(const PieceEnds& ends, Report& report);
/// Joins ends that are left over and lie within `gap` of each other, the nearest first.
void bridge_gaps(const PieceEnds& ends, double gap, std::vector<End>& mates);

} // namespace velmora::imports
