// The cut as it stands in the machine: the four planes along the wire, the block of foam, the
// table.
#pragma once

#include "cutview/space_view.h"
#include "forms/cut_at_hand.h"

#include <array>
#include <cstddef>
#include <optional>
#include <vector>

namespace velmora {

struct CutScene {
    /// The wire's way in each plane, in their order of depth.
    std::array<std::vector<cutview::Place>, cutting::planes> lines;
    cutview::Place block_least, block_most; ///< the foam round both outlines, with some to spare
    cutview::Place least, most;             ///< of all: from tower to tower, from the table up

    [[nodiscard]] cutview::Place at(cutting::Plane plane, cutting::Point point) const;
    std::array<double, cutting::planes> depth = {};
};

/// Nothing where the depths of the planes are not known.
[[nodiscard]] std::optional<CutScene> scene_of(const CutAtHand& cut);

/// The corners of a box: bit 0 of the place X, bit 1 Y, bit 2 Z.
[[nodiscard]] std::array<cutview::Place, 8> corners_of(const cutview::Place& least,
                                                       const cutview::Place& most);

} // namespace velmora
