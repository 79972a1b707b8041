// The ends of open pieces and the places where they meet: what chaining decides on.
#pragma once

#include "import/pieces.h"

#include <cstdint>
#include <limits>
#include <span>
#include <tuple>
#include <vector>

namespace velmora::imports {

/// An end of an open piece: twice the piece's place in the list, and 1 more for its last point.
using End = std::uint32_t;
inline constexpr End no_end = std::numeric_limits<End>::max();

inline End other_end(End end) {
    return end ^ 1U;
}

/// What tells an end from others in the same place, whatever the order of the file.
struct EndLook {
    Point place;
    Point direction; ///< from the end into its piece, of length 1
    Point far;       ///< the other end
    Point middle;

    [[nodiscard]] auto key() const {
        return std::tuple(place.X, place.Y, direction.X, direction.Y, far.X, far.Y, middle.X,
                          middle.Y);
    }
};

class PieceEnds {
  public:
    /// `open` are some of the pieces.
    PieceEnds(const Pieces& pieces, std::vector<Piece> open, double gap);

    [[nodiscard]] std::size_t count() const { return nodes_.size(); }
    [[nodiscard]] std::size_t node_count() const { return starts_.size() - 1; }
    [[nodiscard]] std::uint32_t node(End end) const { return nodes_[end]; }
    /// Ends that meet in a node, those of removed pieces not among them.
    [[nodiscard]] std::span<const End> meeting(std::uint32_t node) const {
        return std::span(meeting_).subspan(starts_[node], counts_[node]);
    }
    [[nodiscard]] const Piece& piece(End end) const { return open_[end / 2]; }
    [[nodiscard]] std::span<const Point> points(End end) const {
        return pieces_.points(piece(end));
    }
    [[nodiscard]] Point place(End end) const {
        return end % 2 == 0 ? points(end).front() : points(end).back();
    }
    [[nodiscard]] EndLook look(End end) const;

    /// Removes pieces that run where another does; how many.
    std::size_t remove_doubles(double gap);
    [[nodiscard]] bool removed(End end) const { return removed_[end / 2]; }

  private:
    void gather();
    [[nodiscard]] bool are_doubles(End a, End b, double gap) const;

    const Pieces& pieces_;
    std::vector<Piece> open_;
    std::vector<std::uint32_t> nodes_;  ///< of each end
    std::vector<std::uint32_t> starts_; ///< of each node's ends in `meeting_`
    std::vector<std::uint32_t> counts_; ///< of each node's ends
    std::vector<End> meeting_;
    std::vector<bool> removed_;
};

} // namespace velmora::imports
