#include "cad/spline.h"

#include "fakes/recording_platform.h"
#include "support/error_number.h"

#include <gtest/gtest.h>

#include <vector>

namespace velmora {
namespace {

using namespace test;

std::vector<Pto> row(std::int32_t count) {
    std::vector<Pto> points;
    for (std::int32_t i = 0; i < count; ++i)
        points.push_back({.X = 1.0 * i, .Y = 2.0 * i});
    return points;
}

TEST(Spline, factorials) {
    EXPECT_EQ(Factorial(0), 1);
    EXPECT_EQ(Factorial(1), 1);
    EXPECT_EQ(Factorial(5), 120);
    EXPECT_EQ(Factorial(20), 2432902008176640000.0);
    EXPECT_GT(Factorial(170), 7e306);
    EXPECT_EQ(number_of([] { (void)Factorial(171); }), 6);
}

TEST(Spline, binomials_and_Bernstein_polynomials) {
    EXPECT_EQ(Binomial(5, 2), 10);
    EXPECT_EQ(Binomial(7, 0), 1);
    EXPECT_EQ(Binomial(7, 7), 1);
    EXPECT_EQ(Bernstein(0, 3, 0), 1);
    EXPECT_EQ(Bernstein(3, 3, 1), 1);
    EXPECT_EQ(Bernstein(1, 3, 0), 0);
    EXPECT_EQ(Bernstein(1, 2, 0.5), 0.5);
    double sum = 0;
    for (std::int32_t i = 0; i <= 9; ++i)
        sum += Bernstein(i, 9, 0.3);
    EXPECT_NEAR(sum, 1, 1e-14);
}

TEST(Spline, two_control_points_are_a_straight_line_in_52_points) {
    RecordingPlatform platform;
    const std::vector<Pto> ends = {{.X = 1, .Y = 5}, {.X = 11, .Y = -15}};
    const auto points = capture_spline(ends);
    ASSERT_EQ(points.upper(), 51);
    EXPECT_EQ(points[0], points[1]);
    EXPECT_EQ(points[0], ends[0]);
    for (std::int32_t j = 1; j <= 50; ++j) {
        EXPECT_NEAR(points[j].X, 1 + 10 * 0.02 * (j - 1), 1e-12);
        EXPECT_NEAR(points[j].Y, 5 - 20 * 0.02 * (j - 1), 1e-12);
    }
    EXPECT_EQ(points[51], ends[1]);
}

// Adding 0.02 up drifts away from its multiples, far enough for 15 digits.
TEST(Spline, the_steps_add_up) {
    RecordingPlatform platform;
    const std::vector<Pto> ends = {{}, {.X = 1}};
    const auto points = capture_spline(ends);
    ASSERT_EQ(points.upper(), 51);
    EXPECT_EQ(points[50].X, 0.980000000000001);
}

TEST(Spline, is_one_curve_of_the_full_degree) {
    RecordingPlatform platform;
    const std::vector<Pto> control = {{}, {.X = 0, .Y = 4}, {.X = 4, .Y = 4}, {.X = 4}};
    const auto points = capture_spline(control);
    ASSERT_EQ(points.upper(), 51);
    // Its middle, t = 0.5, lies an eighth and three eighths between the control points.
    EXPECT_NEAR(points[26].X, 2, 1e-12);
    EXPECT_NEAR(points[26].Y, 3, 1e-12);
}

TEST(Spline, points_have_15_significant_digits) {
    RecordingPlatform platform;
    const std::vector<Pto> control = {{.X = 0.1 + 0.2}, {.X = 1.0 / 3}};
    const auto points = capture_spline(control);
    EXPECT_EQ(points[0].X, 0.3);
    EXPECT_EQ(points[51].X, 0.333333333333333);
}

TEST(Spline, the_factorial_of_the_degree_sets_the_limit) {
    RecordingPlatform platform;
    EXPECT_EQ(capture_spline(row(171)).upper(), 51);
    EXPECT_EQ(number_of([] { (void)capture_spline(row(172)); }), 6);
    EXPECT_EQ(number_of([] { (void)capture_spline(row(100000)); }), 6);
}

TEST(Spline, one_control_point_and_none) {
    RecordingPlatform platform;
    const auto points = capture_spline(row(1));
    ASSERT_EQ(points.upper(), 51);
    EXPECT_EQ(points[30], Pto{});
    EXPECT_EQ(number_of([] { (void)capture_spline({}); }), 9);
}

} // namespace
} // namespace velmora
