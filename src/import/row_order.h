// The order of the rows of an outline: over the upper side and back, in two halves, from the nose.
#pragma once

#include "import/imported.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace velmora::imports {

/// Where x turns: each index is of the last point before it runs back by more than 2 % of the
/// chord. No more than the first hundred: an outline has two.
[[nodiscard]] std::vector<std::size_t> turns_of_x(std::span<const Point> points);
/// The one step in x of more than `least` times the chord: the index of the point after it; 0 where
/// there is none or more than one.
[[nodiscard]] std::size_t only_jump(std::span<const Point> points, double least);
/// The first half turned round, then the second without a nose that both have.
[[nodiscard]] std::vector<Point> joined_halves(std::span<const Point> first,
                                               std::span<const Point> second);
/// A closed loop begun at its rightmost point.
[[nodiscard]] std::vector<Point> started_right(std::vector<Point> points);
/// Ends of the row lie close to each other, as those of a loop.
[[nodiscard]] bool comes_back(std::span<const Point> points);

/// What an outline is, by its x alone; `turns` are where it turns.
struct Course {
    RowOrder order = RowOrder::by_itself; ///< by_itself: not clear
    bool open = false;
    std::vector<std::size_t> turns = {};
};
[[nodiscard]] Course course_of(std::span<const Point> points);

} // namespace velmora::imports
