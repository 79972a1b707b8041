#include "cutprep/compensation.h"

#include "support/error_number.h"
#include "support/outline.h"

#include <gtest/gtest.h>

#include <limits>

namespace velmora {
namespace {

using test::outline;
using test::Points;
using test::points_of;

constexpr double kHuge = std::numeric_limits<double>::max();

void expect_compensated(const Points& points, double merma, const Points& expected) {
    EXPECT_EQ(points_of(compensated(outline(points), merma)), expected);
}

int fault_of(const Points& points) {
    return test::number_of([&] { static_cast<void>(compensated(outline(points), 1)); });
}

TEST(Compensated, horizontal_chords_move_straight_down_and_up) {
    expect_compensated({{0, 0, 1, -1}, {4, 0}, {1, 0, 1}}, 2, {{0, -2, 1, -1}, {4, 2}, {1, 0, 1}});
}

TEST(Compensated, each_slope_and_direction) {
    // sine and cosine of the chord 3, 4 times 0.5
    expect_compensated({{0, 0}, {3, 4}, {9, 9}}, 0.5,
                       {{0x1.9999999999999p-2, -0x1.3333333333334p-2},
                        {0x1.a8f8c7fcfdf93p+1, 0x1.ced5766a026e9p+1},
                        {9, 9}});
}

TEST(Compensated, vertical_chords_repeat_the_last_computed_point) {
    expect_compensated({{0, 0}, {3, 4}, {7, 1}, {7, 2}, {7, 5}, {3, 5}, {1, 2}, {0, 9}}, 0.5,
                       {{0x1.9999999999999p-2, -0x1.3333333333334p-2},
                        {0x1.a666666666666p+1, 0x1.ccccccccccccdp+1},
                        {0x1.a666666666666p+1, 0x1.ccccccccccccdp+1},
                        {0x1.a666666666666p+1, 0x1.ccccccccccccdp+1},
                        {7, 5.5},
                        {0x1.4abfb01f4c464p+1, 0x1.51c01aa03be89p+2},
                        {0x1.0292ab8408957p-1, 0x1.090d0c28ffb18p+1},
                        {0, 9}});
}

TEST(Compensated, a_vertical_chord_at_the_start_gives_the_origin) {
    expect_compensated({{5, 1}, {5, 4}, {5, 6}}, 1, {{0, 0}, {0, 0}, {5, 6}});
}

TEST(Compensated, with_two_points_the_first_moves) {
    expect_compensated({{1, 1}, {2, 1}}, 0.25, {{1, 0.75}, {2, 1}});
}

TEST(Compensated, an_overflow_is_a_fault) {
    EXPECT_EQ(fault_of({{-kHuge, 0}, {kHuge, 1}}), 6);
    EXPECT_EQ(fault_of({{1, 0}, {1, 1e294}}), 6); // divided by 1E-15
    EXPECT_EQ(fault_of({{0, 0}, {0, 1e10}, {1, 0}}), 0);
}

} // namespace
} // namespace velmora
