// Which pieces lie on a loop, and which only lead to or between loops.
#pragma once

#include "import/piece_ends.h"

#include <vector>

namespace velmora::imports {

/// By the place of a piece among the open ones: whether one can leave its one end and come back to
/// the other without passing it.
[[nodiscard]] std::vector<bool> pieces_on_loops(const PieceEnds& ends);

} // namespace velmora::imports
