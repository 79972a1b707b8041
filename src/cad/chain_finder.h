// Which entity continues the chain at a point: the lowest unused one with an end in the point's
// cell. The ends are kept by cell, so that a walk costs as much as the list is long.
#pragma once

#include "cad/cell_index.h"
#include "document/obj_cad.h"

#include <cstdint>
#include <vector>

namespace velmora {

/// Made for one walk over a list whose elements' points don't change, except that the finder itself
/// turns them round. Elements are taken through `take` alone.
class ChainFinder {
  public:
    /// Raises 9 for an unused element whose points have no dimensions.
    explicit ChainFinder(Array<ObjCad>& objects);

    /// Index of the entity that continues the chain at (X, Y), or -1. Its start is tried before its
    /// end; one met at its end is turned round. The last entity left is taken wherever it lies.
    /// `porVertices` looks at last at every vertex of every polyline, used or not. The pointer
    /// goes back to the default where nothing is found.
    std::int32_t BuscaSiguiente(double X, double Y, bool porVertices);

    /// The same at the last point of an element, without the vertices.
    std::int32_t next_after(std::int32_t index);

    /// Marks the element as used.
    void take(std::int32_t index);
    /// Elements with Usado 0.
    [[nodiscard]] std::int32_t unused() const { return unused_; }
    [[nodiscard]] bool is_used(std::int32_t index) const {
        return used_[static_cast<std::size_t>(index)];
    }

  private:
    static constexpr std::int32_t nothing = -1;

    /// An end is twice the index of its entity, plus 1 for the last point.
    struct EndsOfCell {
        std::int32_t first = nothing;
        std::int32_t second = nothing; ///< the rest of the list hangs on it; most have none
    };

    void expect_ends(std::int32_t index) const;
    void add_end(const Pto& point, std::int32_t end);
    /// The list of a cell without its lowest ends that are used, but for its very last end.
    EndsOfCell& cleared(std::int32_t cell);
    [[nodiscard]] std::int32_t touching(std::int32_t cell);
    [[nodiscard]] std::int32_t last_left();
    [[nodiscard]] std::int32_t polyline_with_vertex(double X, double Y) const;

    [[nodiscard]] std::int32_t& behind(std::int32_t end) {
        return behind_[static_cast<std::size_t>(end)];
    }
    [[nodiscard]] std::int32_t& cell_of(std::int32_t end) {
        return cell_of_end_[static_cast<std::size_t>(end)];
    }

    Array<ObjCad>& objects_;
    CellIndex cells_;
    std::vector<EndsOfCell> ends_;          ///< by cell
    std::vector<std::int32_t> behind_;      ///< by end: the next one of its cell's list
    std::vector<std::int32_t> cell_of_end_; ///< by end as the entity runs now
    std::vector<bool> used_;                ///< Usado, close together
    std::int32_t unused_ = 0;
    std::int32_t first_unused_ = 0; ///< nothing unused is before it
};

} // namespace velmora
