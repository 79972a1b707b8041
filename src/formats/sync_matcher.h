// Matching sync records with the points of an outline, by exact coordinates.
#pragma once

#include "document/forma.h"
#include "runtime/place_slots.h"

#include <cstdint>
#include <vector>

namespace velmora {

/// Marks points by place. It gives what a scan of all points for each record gives, in time that
/// grows with points and records, not with their product. The outline must keep its points while
/// the matcher lives; should the windows' turn have cut it, marking raises 9.
class SyncMatcher {
  public:
    explicit SyncMatcher(Array<Pto>& points);
    /// Of the points up to index `last` alone. Raises 9 where that lies beyond the outline.
    SyncMatcher(Array<Pto>& points, std::int32_t last);

    /// Sets Sinc of every point whose coordinates equal these, and tells how many there are; all of
    /// them again when the place comes again.
    std::int32_t mark(double x, double y);

  private:
    [[nodiscard]] std::int32_t& first_of(double x, double y);
    std::int32_t mark_chain(std::int32_t first);

    Array<Pto>& points_;
    runtime::PlaceSlots first_at_; ///< the first point of a place; half of the slots stay free
    /// The next point of the same place, -1 at the end; for a first point that was marked before,
    /// -1 less the number of points at its place.
    std::vector<std::int32_t> next_;
};

} // namespace velmora
