#include "shapeops/density.h"

#include "support/error_number.h"
#include "support/outline.h"

#include <gtest/gtest.h>

#include <limits>

namespace velmora {
namespace {

using test::number_of;
using test::numbered;
using test::outline;
using test::places;
using test::Points;
using test::points_of;

Points multiplied(const Points& points, std::int32_t parts) {
    Array<Pto> array = outline(points);
    multiply_points(array, parts);
    return points_of(array);
}

TEST(Thinned, points_go_at_the_interval) {
    struct Case {
        double count;
        double jump;
        int first;
        std::vector<double> left;
    };
    const Case cases[] = {
        {2, 1, 4, {1, 2, 3, 5}}, // 4, and 6 wraps to 0
        {1, 0, 0, {1, 2, 3, 4, 5}}, {3, 0, 2, {0, 1, 5}},
        {2, 2, 5, {0, 1, 3, 4}},    // 5, and 8 wraps to 2
        {2, 5, 1, {0, 2, 3, 4, 5}}, // 1, and 7 wraps to 1 again
        {2.9, 0, 0, {2, 3, 4, 5}},  {0.5, 0, 3, {0, 1, 2, 3, 4, 5}},
        {3, 0.9, 0, {1, 3, 5}},    // 0, 1.9 and 3.8
        {2, 0.5, 1, {0, 3, 4, 5}}, // 1, and 2.5 goes to 2
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::Message() << c.count << " " << c.jump << " " << c.first);
        const auto kept = thinned(outline(numbered(6)), c.first, c.count, c.jump);
        ASSERT_TRUE(kept);
        EXPECT_EQ(places(*kept), c.left);
    }
}

TEST(Thinned, points_that_stay_keep_their_sync_mark_and_lose_the_other) {
    const auto kept = thinned(outline(numbered(6)), 1, 2, 0);
    ASSERT_TRUE(kept);
    EXPECT_EQ(points_of(*kept), (Points{{0, 1, 1}, {3, 1, 1}, {4, 1}, {5, 1}}));
}

TEST(Thinned, one_zeroed_record_stands_for_nothing_left) {
    const auto kept = thinned(outline(numbered(6)), 3, 6, 0);
    ASSERT_TRUE(kept);
    EXPECT_EQ(points_of(*kept), Points{Pto{}});
}

TEST(Thinned, one_turn_has_to_bring_a_place_back) {
    struct Case {
        double count;
        double jump;
        int first;
        bool fits;
    };
    const Case cases[] = {
        {2, 6, 5, false}, // 5, and 12 wraps to 6: beyond the array
        {2, 5, 5, true},  // 11 wraps to 5
        {2, 99999999999, 0, false},
        {99999999999, 0, 0, false},
        {13, 0, 0, false},
        {12, 0, 0, true},
        {1, 0, 12, false},
        {1, 0, -1, false},
    };
    for (const Case& c : cases)
        EXPECT_EQ(thinned(outline(numbered(6)), c.first, c.count, c.jump).has_value(), c.fits)
            << c.count << " " << c.jump << " " << c.first;
}

TEST(MultiplyPoints, the_closing_segment_gets_its_points_too) {
    EXPECT_EQ(multiplied({{0, 0, 1, 1}, {4, 0}, {4, 4, 1}}, 2),
              (Points{{0, 0, 1, 1}, {2, 0}, {4, 0}, {4, 2}, {4, 4, 1}, {2, 2}}));
}

TEST(MultiplyPoints, the_shift_by_1000_shows_in_the_last_bits) {
    EXPECT_EQ(multiplied({{0.1, 0.2}, {0.7, -0.3}, {-1.1, 0.2}}, 3),
              (Points{{0.1, 0.2},
                      {0x1.3333333333800p-2, 0x1.1111111114000p-5},
                      {0.5, -0x1.1111111111000p-3},
                      {0.7, -0.3},
                      {0x1.999999999a000p-4, -0x1.1111111111000p-3},
                      {-0.5, 0x1.1111111114000p-5},
                      {-1.1, 0.2},
                      {-0x1.6666666666800p-1, 0x1.999999999a000p-3},
                      {-0x1.3333333333000p-2, 0x1.999999999a000p-3}}));
}

// Dividing first and multiplying then: the other order, or a share of the whole, is one bit off.
TEST(MultiplyPoints, a_step_is_the_way_by_the_factor_and_that_by_its_number) {
    EXPECT_EQ(multiplied({{0, 1}, {386, 1}, {386, 0}}, 6)[5].X, 0x1.41aaaaaaaaaa8p+8);
    EXPECT_EQ(multiplied({{1, 58}, {1, 0}, {0, 0}}, 7)[6].Y, 0x1.0924924924900p+3);
}

TEST(MultiplyPoints, one_part_leaves_the_outline) {
    const Points before = {{0, 0, 1, 1}, {4, 0}, {4, 4, 1}};
    EXPECT_EQ(multiplied(before, 1), before);
}

TEST(MultiplyPoints, an_outline_can_grow_beyond_16_bits) {
    Points points(100);
    for (std::size_t i = 0; i < points.size(); ++i)
        points[i].X = static_cast<double>(i);
    const Points many = multiplied(points, 1000);
    ASSERT_EQ(many.size(), 100000U);
    EXPECT_EQ(many[98000].X, 98);
    EXPECT_EQ(many[98500].X, 98.5);
}

TEST(MultiplyPoints, beyond_32_bits_of_points_nothing_is_changed) {
    const Points before = {{0, 0}, {4, 0}, {4, 4}};
    Array<Pto> array = outline(before);
    EXPECT_EQ(number_of([&] { multiply_points(array, 715827883); }), error::overflow);
    EXPECT_EQ(points_of(array), before);
}

TEST(MultiplyPoints, a_fault_leaves_what_was_cut_before) {
    constexpr double huge = std::numeric_limits<double>::max();
    Array<Pto> array = outline({{0, 0}, {-huge, 0}, {huge, 0}});
    EXPECT_EQ(number_of([&] { multiply_points(array, 2); }), error::overflow);
    EXPECT_EQ(points_of(array), (Points{{0, 0}, {-huge / 2, 0}, {-huge, 0}, Pto{}, Pto{}, Pto{}}));
}

} // namespace
} // namespace velmora
