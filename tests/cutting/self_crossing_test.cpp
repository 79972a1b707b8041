#include "cutting/self_crossing.h"

#include "cutting/outlines.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace velmora::cutting {
namespace {

using Points = std::vector<Point>;

/// The number of crossings, which is the same for the way turned round, begun elsewhere, mirrored
/// and turned by a right angle.
std::size_t crossings_of_closed(const Points& points) {
    const std::size_t count = self_crossings(points, true).size();
    Points turned = points;
    for (int way = 0; way < 16; ++way) {
        if (way == 8)
            std::ranges::reverse(turned);
        if (way == 4 || way == 12)
            for (Point& point : turned)
                point.X = -point.X;
        for (Point& point : turned)
            point = {-point.Y, point.X};
        std::ranges::rotate(turned, turned.begin() + 1);
        EXPECT_EQ(self_crossings(turned, true).size(), count) << way;
    }
    return count;
}

TEST(SelfCrossing, a_bow_tie_crosses_once_in_its_middle) {
    const auto found = self_crossings(Points{{0, 0}, {4, 4}, {4, 0}, {0, 4}}, true);
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found[0].first, 0U);
    EXPECT_EQ(found[0].second, 2U);
    EXPECT_EQ(found[0].where, (Point{2, 2}));
}

TEST(SelfCrossing, the_step_back_to_the_start_counts_where_the_way_is_closed) {
    const Points points = {{0, 0}, {2, 2}, {4, 0}, {4, 2}};
    EXPECT_TRUE(self_crossings(points, false).empty());
    const auto found = self_crossings(points, true);
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found[0].first, 1U);
    EXPECT_EQ(found[0].second, 3U);
    EXPECT_TRUE(self_crossings(Points{{0, 0}, {4, 0}, {4, 4}, {0, 4}}, true).empty());
}

TEST(SelfCrossing, a_crossing_at_a_corner_is_one) {
    // Both ways have a corner there.
    const Points corners = {{0, 0}, {2, 2}, {4, 4}, {4, 0}, {2, 2}, {0, 4}};
    EXPECT_EQ(crossings_of_closed(corners), 1U);
    EXPECT_EQ(self_crossings(corners, true).at(0).where, (Point{2, 2}));
    // One of them goes straight on.
    const Points corner = {{0, 0}, {4, 4}, {4, 0}, {2, 2}, {0, 4}};
    EXPECT_EQ(crossings_of_closed(corner), 1U);
    EXPECT_EQ(self_crossings(corner, true).at(0).where, (Point{2, 2}));
}

TEST(SelfCrossing, touching_is_none) {
    // Corner on corner, corner on a step, and a corner that stands in another.
    EXPECT_EQ(crossings_of_closed({{0, 0}, {2, 2}, {4, 0}, {4, 4}, {2, 2}, {0, 4}}), 0U);
    EXPECT_EQ(crossings_of_closed({{0, 0}, {4, 0}, {4, 4}, {2, 0}, {0, 4}}), 0U);
    EXPECT_EQ(crossings_of_closed({{0, 0}, {2, 2}, {4, 0}, {4, 9}, {3, 4}, {2, 2}, {1, 4}, {0, 9}}),
              0U);
}

TEST(SelfCrossing, a_stretch_in_common_is_none) {
    // A way in that is the way out, a step back over the one before, and two ways that join.
    EXPECT_EQ(crossings_of_closed({{-9, 0}, {0, 0}, {4, -2}, {8, 0}, {4, 2}, {0, 0}, {-9, 0}}), 0U);
    EXPECT_EQ(crossings_of_closed({{0, 0}, {5, 5}, {1, 1}, {9, 9}}), 0U);
    EXPECT_EQ(crossings_of_closed({{0, 0}, {2, 2}, {5, 2}, {5, 6}, {3, 6}, {2, 2}, {1, 1}, {0, 1}}),
              0U);
}

TEST(SelfCrossing, repeated_points_change_nothing) {
    const auto found = self_crossings(
        Points{{0, 0}, {0, 0}, {4, 4}, {4, 4}, {4, 0}, {0, 4}, {0, 4}, {0, 0}}, true);
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found[0].first, 1U);
    EXPECT_EQ(found[0].second, 4U);
}

TEST(SelfCrossing, what_rounding_hides_is_decided_exactly) {
    // The last corner lies one bit beside the step from the first to the second.
    const double bit = std::nextafter(0.3, 1.0);
    const Points over = {{0.1, 0.1}, {0.7, 0.7}, {0.7, 0.0}, {0.3, bit}};
    const Points under = {{0.1, 0.1}, {0.7, 0.7}, {0.7, 0.0}, {bit, 0.3}};
    EXPECT_EQ(self_crossings(over, false).size(), 1U);
    EXPECT_TRUE(self_crossings(under, false).empty());
}

TEST(SelfCrossing, too_little_to_cross) {
    EXPECT_TRUE(self_crossings({}, true).empty());
    EXPECT_TRUE(self_crossings(Points{{1, 1}}, true).empty());
    EXPECT_TRUE(self_crossings(Points{{1, 1}, {1, 1}, {1, 1}}, true).empty());
    EXPECT_TRUE(self_crossings(Points{{1, 1}, {2, 2}}, true).empty());
}

// Every pair looked at, in whole numbers, which this reads without rounding.
int side(const Point& a, const Point& b, const Point& c) {
    const double area = cross(b - a, c - a);
    return area > 0 ? 1 : area < 0 ? -1 : 0;
}

std::set<std::pair<std::size_t, std::size_t>> all_crossings(const Points& points) {
    std::set<std::pair<std::size_t, std::size_t>> found;
    const auto at = [&](std::size_t i) {
        return points[i % points.size()];
    };
    for (std::size_t i = 0; i < points.size(); ++i)
        for (std::size_t j = i + 1; j < points.size(); ++j)
            if (side(at(i), at(i + 1), at(j)) * side(at(i), at(i + 1), at(j + 1)) < 0 &&
                side(at(j), at(j + 1), at(i)) * side(at(j), at(j + 1), at(i + 1)) < 0)
                found.emplace(i, j);
    return found;
}

TEST(SelfCrossing, of_any_way_as_looking_at_every_pair_says) {
    int crossed = 0;
    int simple = 0;
    for (unsigned seed = 0; seed < 4000; ++seed) {
        const std::size_t count = 3 + seed % 9;
        // A wide grid, so that three points seldom lie in line: this looks within the steps alone.
        const Points points = random_points(count, seed, 1'000'000);
        const auto expected = all_crossings(points);
        const auto found = self_crossings(points, true);
        EXPECT_EQ(found.empty(), expected.empty()) << seed;
        for (const Crossing& crossing : found)
            EXPECT_TRUE(expected.contains({crossing.first, crossing.second})) << seed;
        (expected.empty() ? simple : crossed)++;
    }
    EXPECT_GT(crossed, 500);
    EXPECT_GT(simple, 500);
}

TEST(SelfCrossing, on_a_narrow_grid_nothing_is_missed_within_steps) {
    for (unsigned seed = 0; seed < 4000; ++seed) {
        const Points points = random_points(3 + seed % 12, seed, 6);
        if (all_crossings(points).empty())
            continue;
        EXPECT_FALSE(self_crossings(points, true).empty()) << seed;
    }
}

TEST(SelfCrossing, two_crossings_apart_are_both_named) {
    const Points two = {{0, 0}, {3, 0}, {5, 2}, {8, 2}, {8, 0}, {5, 0}, {3, 2}, {0, 2}};
    const auto middle = self_crossings(two, true);
    ASSERT_EQ(middle.size(), 1U);
    EXPECT_EQ(middle[0].where, (Point{4, 1}));
    const Points chain = {{0, 0},  {3, 0},  {5, 2}, {8, 2}, {10, 0}, {12, 0},
                          {12, 2}, {10, 2}, {8, 0}, {5, 0}, {3, 2},  {0, 2}};
    const auto both = self_crossings(chain, true);
    ASSERT_EQ(both.size(), 2U);
    EXPECT_EQ(both[0].where, (Point{4, 1}));
    EXPECT_EQ(both[1].where, (Point{9, 1}));
}

} // namespace
} // namespace velmora::cutting
