// Which entity continues the chain at a point: the lowest unused one with an end in the point's
// cell. The ends are kept by cell, so that a walk costs as much as the list is long.
#pragma once

#include "document/obj_cad.h"

#include <cstdint>
#include <vector>

namespace velmora {

/// Made for one walk over a list whose elements' points stay what they are, but for the turning
/// that the finder does itself. Elements are taken through `take` alone.
class ChainFinder {
  public:
    /// Raises 9 for an unused element whose points have no dimensions.
    explicit ChainFinder(Array<ObjCad>& objects);

    /// Index of the entity that continues the chain at (X, Y), or -1. Its start is tried before its
    /// end; one met at its end is turned round. The last entity left is taken wherever it lies.
    /// `porVertices` looks at last at every vertex of every polyline, used or not. The pointer
    /// goes back to the default where nothing is found.
    std::int32_t BuscaSiguiente(double X, double Y, bool porVertices);

    /// Marks the element as used.
    void take(std::int32_t index);
    /// Elements with Usado 0.
    [[nodiscard]] std::int32_t unused() const { return unused_; }

  private:
    static constexpr std::int32_t nothing = -1;

    /// A cell of whole units and the lowest of the ends in it. An end is twice the index of its
    /// entity, plus 1 for the last point.
    struct Cell {
        double X = 0;
        double Y = 0;
        std::int32_t first = nothing;
    };

    [[nodiscard]] static Cell cell_of(double X, double Y);
    [[nodiscard]] Cell& slot_of(const Cell& cell);
    void add_end(const Pto& point, std::int32_t end);
    [[nodiscard]] std::int32_t lowest_at(double X, double Y);
    [[nodiscard]] std::int32_t first_unused();
    [[nodiscard]] std::int32_t polyline_with_vertex(double X, double Y) const;

    Array<ObjCad>& objects_;
    std::vector<Cell> cells_;                ///< open addressing, a power of two
    std::vector<std::int32_t> next_in_cell_; ///< by end
    std::int32_t unused_ = 0;
    std::int32_t first_unused_ = 0; ///< nothing unused stands before it
};

} // namespace velmora
