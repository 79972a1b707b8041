#include "cutview/strips.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace velmora::cutview {
namespace {

using testing::ElementsAre;

TEST(StripsTest, pairs_that_no_eye_tells_apart_are_left_out) {
    const std::vector<Seen> one = {{0, 0, 0}, {0.2, 0, 0}, {0.4, 0, 0}, {1.3, 0, 0}, {1.4, 0, 0}};
    const std::vector<Seen> other(5);
    EXPECT_THAT(told_apart(one, other, 1), ElementsAre(0, 3, 4));
}

TEST(StripsTest, one_end_that_moves_is_enough) {
    const std::vector<Seen> one(3);
    const std::vector<Seen> other = {{0, 0, 0}, {0, 2, 0}, {0, 2, 0}};
    EXPECT_THAT(told_apart(one, other, 1), ElementsAre(0, 1, 2));
}

// Many small steps add up: none is lost for being small itself.
TEST(StripsTest, slow_steps_are_measured_from_the_pair_kept_before) {
    std::vector<Seen> one;
    for (int i = 0; i <= 100; ++i)
        one.push_back({i * 0.1, 0, 0});
    EXPECT_EQ(told_apart(one, one, 0.95).size(), 11U);
}

TEST(StripsTest, what_has_no_pairs_has_no_strips) {
    EXPECT_TRUE(told_apart({}, {}, 1).empty());
    const std::vector<Seen> single(1);
    const auto kept = told_apart(single, single, 1);
    EXPECT_THAT(kept, ElementsAre(0));
    EXPECT_TRUE(farthest_first(kept, single, single).empty());
}

TEST(StripsTest, the_farthest_strip_comes_first) {
    const std::vector<Seen> line = {{0, 0, 1}, {1, 0, 5}, {2, 0, 9}, {3, 0, 0}};
    const std::vector<std::size_t> kept = {0, 1, 2, 3};
    std::vector<std::size_t> order;
    for (const Strip& strip : farthest_first(kept, line, line))
        order.push_back(strip.from);
    EXPECT_THAT(order, ElementsAre(1, 2, 0));
}

TEST(StripsTest, equally_far_strips_keep_their_order) {
    const std::vector<Seen> line(4);
    const std::vector<std::size_t> kept = {0, 1, 2, 3};
    std::vector<std::size_t> order;
    for (const Strip& strip : farthest_first(kept, line, line))
        order.push_back(strip.to);
    EXPECT_THAT(order, ElementsAre(1, 2, 3));
}

TEST(StripsTest, a_place_is_as_far_from_a_segment_as_from_its_nearest_part) {
    EXPECT_DOUBLE_EQ(distance_to_segment({5, 3}, {0, 0}, {10, 0}), 3);
    EXPECT_DOUBLE_EQ(distance_to_segment({13, 4}, {0, 0}, {10, 0}), 5);
    EXPECT_DOUBLE_EQ(distance_to_segment({3, 4}, {0, 0}, {0, 0}), 5);
}

TEST(StripsTest, the_nearer_end_of_the_nearest_segment_is_found) {
    const std::vector<Seen> line = {{0, 0, 0}, {10, 0, 0}, {10, 10, 0}};
    EXPECT_EQ(nearest_point(line, {4, 1}, 3), 0U);
    EXPECT_EQ(nearest_point(line, {6, 1}, 3), 1U);
    EXPECT_EQ(nearest_point(line, {11, 9}, 3), 2U);
    EXPECT_EQ(nearest_point(line, {4, 5}, 3), std::nullopt);
    EXPECT_EQ(nearest_point({}, {4, 5}, 3), std::nullopt);
}

} // namespace
} // namespace velmora::cutview
