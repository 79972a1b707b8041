#include "formats/sync_matcher.h"

#include "formats/sample_files.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <random>

namespace velmora {
namespace {

Array<Pto> array_of_points(const std::vector<Pto>& points) {
    Array<Pto> array;
    for (const Pto& point : points)
        array.append(point);
    return array;
}

bool same(const Array<Pto>& a, const Array<Pto>& b) {
    return std::ranges::equal(a.all(), b.all());
}

/// What the matcher stands for: every point is tried for every record.
std::int32_t scan(Array<Pto>& points, double x, double y) {
    std::int32_t count = 0;
    for (Pto& point : points.all()) {
        if (point.X == x && point.Y == y) {
            point.Sinc = 1;
            ++count;
        }
    }
    return count;
}

TEST(SyncMatcher, all_points_of_a_place_are_marked_and_counted_each_time) {
    Array<Pto> points = array_of_points({{1, 2, 0, 0}, {3, 4, 0, 0}, {1, 2, 0, 0}, {1, 2.5, 0, 0}});
    SyncMatcher matcher(points);
    EXPECT_EQ(matcher.mark(1, 2), 2);
    EXPECT_EQ(matcher.mark(1, 2), 2);
    EXPECT_EQ(matcher.mark(2, 1), 0);
    EXPECT_EQ(matcher.mark(1, 2.5), 1);
    EXPECT_EQ(matcher.mark(1, 2.5), 1);
    EXPECT_TRUE(
        same(points, array_of_points({{1, 2, 1, 0}, {3, 4, 0, 0}, {1, 2, 1, 0}, {1, 2.5, 1, 0}})));
}

TEST(SyncMatcher, both_zeros_are_one_place_and_one_bit_makes_another) {
    Array<Pto> points =
        array_of_points({{0.0, -0.0, 0, 0}, {-0.0, 0.0, 0, 0}, {std::nextafter(0.1, 1), 0, 0, 0}});
    SyncMatcher matcher(points);
    EXPECT_EQ(matcher.mark(-0.0, -0.0), 2);
    EXPECT_EQ(matcher.mark(0.1, 0), 0);
    EXPECT_EQ(matcher.mark(std::nextafter(0.1, 1), -0.0), 1);
}

TEST(SyncMatcher, one_point_alone) {
    Array<Pto> points = array_of_points({{5, 5, 0, 0}});
    SyncMatcher matcher(points);
    EXPECT_EQ(matcher.mark(0, 0), 0);
    EXPECT_EQ(matcher.mark(5, 5), 1);
    EXPECT_EQ(points[0].Sinc, 1);
}

TEST(SyncMatcher, points_behind_the_given_index_are_not_searched) {
    Array<Pto> points = array_of_points({{1, 2, 0, 0}, {3, 4, 0, 0}, {1, 2, 0, 0}});
    SyncMatcher matcher(points, 1);
    EXPECT_EQ(matcher.mark(1, 2), 1);
    EXPECT_EQ(points[2].Sinc, 0);
    EXPECT_EQ(test::number_of([&] { SyncMatcher(points, 3); }), 9);
}

TEST(SyncMatcher, an_outline_cut_meanwhile_raises_9) {
    Array<Pto> points = array_of_points({{1, 1, 0, 0}, {2, 2, 0, 0}});
    SyncMatcher matcher(points);
    points.redim(0);
    EXPECT_EQ(test::number_of([&] { matcher.mark(2, 2); }), 9);
}

/// A few values on a grid, so that places repeat, among them both zeros and the extremes.
double any_value(std::mt19937& random) {
    static const std::vector<double> rare = {
        -0.0, 1e308, -1e308, 5e-324, std::numeric_limits<double>::infinity(), 25000};
    const auto pick = random() % 40;
    if (pick < rare.size())
        return rare[pick];
    return static_cast<double>(random() % 12) / 4 - 1;
}

TEST(SyncMatcher, random_outlines_and_records_give_what_the_plain_scan_gives) {
    std::mt19937 random(20021);
    for (int round = 0; round < 300; ++round) {
        std::vector<Pto> outline(1 + random() % 200);
        for (Pto& point : outline)
            point = {any_value(random), any_value(random), 0, 0};
        Array<Pto> hashed = array_of_points(outline);
        Array<Pto> scanned = array_of_points(outline);
        SyncMatcher matcher(hashed);
        for (auto n = random() % 100; n > 0; --n) {
            const double x = any_value(random);
            const double y = any_value(random);
            ASSERT_EQ(matcher.mark(x, y), scan(scanned, x, y)) << x << ' ' << y;
        }
        ASSERT_TRUE(same(hashed, scanned));
    }
}

TEST(SyncMatcher, equal_points_by_the_hundred_thousand_are_no_trouble) {
    Array<Pto> points;
    points.redim(99999);
    SyncMatcher matcher(points);
    std::int64_t total = 0;
    for (int i = 0; i < 100000; ++i)
        total += matcher.mark(0, 0);
    EXPECT_EQ(total, 10'000'000'000);
    EXPECT_EQ(points[99999].Sinc, 1);
}

} // namespace
} // namespace velmora
