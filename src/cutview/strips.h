// The sheet between two lines that are joined point by point, as a picture needs it: no more strips
// than can be told apart, the farthest first; and which joined pair lies nearest to a place.
#pragma once

#include "cutview/space_view.h"

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

namespace velmora::cutview {

/// The pairs worth drawing, in their order: the first, the last, and each whose one or other end is
/// `least` pixels or more from that of the pair kept before.
[[nodiscard]] std::vector<std::size_t> told_apart(std::span<const Seen> one,
                                                  std::span<const Seen> other, double least);

/// A piece of the sheet: from one kept pair to the next.
struct Strip {
    std::size_t from = 0;
    std::size_t to = 0;
    double depth = 0;
};

/// The strips between the kept pairs, the farthest first; of equally far ones the earlier first.
[[nodiscard]] std::vector<Strip> farthest_first(std::span<const std::size_t> kept,
                                                std::span<const Seen> one,
                                                std::span<const Seen> other);

/// How far a place lies from a segment.
[[nodiscard]] double distance_to_segment(Spot place, Spot from, Spot to);

/// The point of a line nearest to a place: the segment's beginning or end that is
/// nearer. None within `reach`.
[[nodiscard]] std::optional<std::size_t> nearest_point(std::span<const Seen> line, Spot place,
                                                       double reach);

} // namespace velmora::cutview
