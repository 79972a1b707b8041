// Pieces of a drawing joined end to end into chains. What comes out does not depend on the order
// of the pieces nor on the direction in which each was drawn.
#pragma once

#include "import/imported.h"
#include "import/pieces.h"

#include <optional>
#include <string>
#include <vector>

namespace velmora::imports {

struct ChainChoices {
    std::optional<double> gap = {}; ///< ends up to this are joined; by itself 1e-6 of the size
    bool remove_doubles = true;
};

/// Closed chains first, then by length, the longest first. A closed chain runs counter-clockwise
/// from its leftmost point, an open one from its leftmost end. Where more than two pieces meet, a
/// piece that lies on a loop is joined before one that leads to a dead end, and then the two with
/// the smallest turn; each such place is reported. Pieces without length and doubles are removed
/// and counted. `names` are those of the layers.
[[nodiscard]] std::vector<Chain> chained(const Pieces& pieces, const ChainChoices& choices,
                                         const std::vector<std::string>& names, Report& report);

} // namespace velmora::imports
