// What the two pictures of a cut draw: the cut, and what was chosen to be seen of it.
#pragma once

#include "forms/cut_at_hand.h"
#include "forms/cut_boxes.h"

#include <memory>
#include <optional>

namespace velmora {

struct CutShown {
    std::shared_ptr<const CutAtHand> cut;
    CutPlane plane = CutPlane::piece;
    CutJoins joins;
    double along = 0;                   ///< where the wire is
    std::optional<cutting::Entry> mark; ///< what is looked at
};

/// The points of a finding: from its first to its last, past the end on from the first one.
[[nodiscard]] std::vector<std::size_t> marked_points(const cutting::Entry& entry,
                                                     std::size_t count);

} // namespace velmora
