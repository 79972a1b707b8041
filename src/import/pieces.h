// What a drawing is made of once its curves are flattened: runs of points in one pool.
#pragma once

#include "import/geometry.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace velmora::imports {

struct Piece {
    std::uint32_t first = 0; ///< of its points in the pool
    std::uint32_t count = 0;
    std::uint32_t line = 0; ///< of its entity in the file
    std::uint16_t layer = 0;
    bool closed = false; ///< its last point is joined with its first one
};

class Pieces {
  public:
    /// More points than any machine cuts; a small file can ask for any number of them.
    static constexpr std::size_t most_points = 4'000'000;

    void begin(std::size_t line, std::uint16_t layer);
    /// A point where the run already is adds nothing, nor does one beyond all numbers.
    void add(const Point& point);
    /// Ends the run that `begin` began; a run without points leaves none.
    void end(bool closed);
    /// Some of the points stand for a curve, and so follow from the tolerance.
    void mark_curved() { curved_ = true; }
    [[nodiscard]] bool curved() const { return curved_; }
    /// Nothing more is taken. Points beyond all numbers count too, since each took its time.
    [[nodiscard]] bool full() const { return offered_ >= most_points; }

    [[nodiscard]] const std::vector<Piece>& all() const { return pieces_; }
    [[nodiscard]] std::span<const Point> points(const Piece& piece) const {
        return std::span(points_).subspan(piece.first, piece.count);
    }
    [[nodiscard]] const std::vector<Point>& pool() const { return points_; }
    template <class Test>
    void erase_if(Test&& test) {
        std::erase_if(pieces_, test);
    }

  private:
    std::vector<Point> points_;
    std::vector<Piece> pieces_;
    Piece open_;
    std::size_t offered_ = 0;
    bool curved_ = false;
};

} // namespace velmora::imports
