#include "cad/flatten.h"

#include "document/session.h"
#include "fakes/recording_platform.h"
#include "support/error_number.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <random>

namespace velmora {
namespace {

using namespace test;

constexpr double near = 1e-9;

void expect_point(const Pto& point, double X, double Y) {
    EXPECT_NEAR(point.X, X, near);
    EXPECT_NEAR(point.Y, Y, near);
}

void expect_on_circle(const Array<Pto>& points, std::int32_t j, double radius, double degrees) {
    const double angle = degrees * std::numbers::pi / 180;
    expect_point(points[j], radius * std::cos(angle), radius * std::sin(angle));
}

TEST(Flatten, an_arc_of_3_segments_from_0_to_90_has_points_at_0_30_60_90) {
    RecordingPlatform platform;
    session.PutArc = 3;
    for (const auto& points :
         {dxf_arc(0, 0, 10, 0, 90), capture_arc(0, 0, 10, 0, std::numbers::pi / 2)}) {
        ASSERT_EQ(points.upper(), 3);
        for (std::int32_t j = 0; j <= 3; ++j)
            expect_on_circle(points, j, 10, 30.0 * j);
    }
}

TEST(Flatten, an_arc_over_the_east_runs_counter_clockwise) {
    RecordingPlatform platform;
    session.PutArc = 4;
    const auto points = dxf_arc(1, 2, 10, 350, 10);
    ASSERT_EQ(points.upper(), 4);
    for (std::int32_t j = 0; j <= 4; ++j) {
        const double angle = (350 + 5.0 * j) * std::numbers::pi / 180;
        expect_point(points[j], 1 + 10 * std::cos(angle), 2 + 10 * std::sin(angle));
    }
}

TEST(Flatten, an_arc_without_sweep_gives_equal_points) {
    RecordingPlatform platform;
    session.PutArc = 5;
    const auto points = dxf_arc(0, 0, 1, 45, 45);
    ASSERT_EQ(points.upper(), 5);
    for (std::int32_t j = 1; j <= 5; ++j)
        EXPECT_EQ(points[j], points[0]);
}

TEST(Flatten, a_captured_sweep_is_whole_degrees_from_the_unrounded_start) {
    RecordingPlatform platform;
    session.PutArc = 2;
    const double start = 10.4 * std::numbers::pi / 180;
    const auto points = capture_arc(0, 0, 100, start, 50.6 * std::numbers::pi / 180);
    // 51 less 10 degrees, laid on from 10.4: the end lies 0.8 degrees behind the true one.
    expect_on_circle(points, 0, 100, 10.4);
    expect_on_circle(points, 1, 100, 10.4 + 20.5);
    expect_on_circle(points, 2, 100, 10.4 + 41);
}

TEST(Flatten, a_captured_arc_within_one_whole_degree_stays_at_its_start) {
    RecordingPlatform platform;
    session.PutArc = 3;
    const auto points =
        capture_arc(0, 0, 10, 0.4 * std::numbers::pi / 180, 0.1 * std::numbers::pi / 180);
    for (std::int32_t j = 0; j <= 3; ++j)
        expect_on_circle(points, j, 10, 0.4);
}

TEST(Flatten, captured_angles_are_taken_modulo_360_with_their_sign) {
    RecordingPlatform platform;
    session.PutArc = 3;
    const auto negative =
        capture_arc(0, 0, 10, 10 * std::numbers::pi / 180, -370 * std::numbers::pi / 180);
    expect_on_circle(negative, 3, 10, 10 + 340);
    const auto full = capture_arc(0, 0, 10, 0, 2 * std::numbers::pi);
    expect_on_circle(full, 3, 10, 0);
}

// The ends are the same with full turns and without; only the points between them tell.
TEST(Flatten, the_points_between_tell_that_full_turns_are_dropped) {
    RecordingPlatform platform;
    session.PutArc = 4;
    const double degree = std::numbers::pi / 180;
    const auto beyond = capture_arc(0, 0, 10, 10 * degree, 450 * degree);
    expect_on_circle(beyond, 1, 10, 10 + 20);
    expect_on_circle(beyond, 2, 10, 10 + 40);
    const auto below = capture_arc(0, 0, 10, 10 * degree, -370 * degree);
    expect_on_circle(below, 1, 10, 10 + 85);
    const auto started_beyond = capture_arc(0, 0, 10, 370 * degree, 50 * degree);
    expect_on_circle(started_beyond, 1, 10, 10 + 10);
}

TEST(Flatten, a_circle_of_4_segments) {
    RecordingPlatform platform;
    session.PutCircle = 4;
    for (const auto& points : {dxf_circle(0, 0, 10), capture_circle(0, 0, 10)}) {
        ASSERT_EQ(points.upper(), 4);
        EXPECT_EQ(points[0].X, 10);
        EXPECT_EQ(points[0].Y, 0);
        expect_point(points[1], 0, 10);
        expect_point(points[2], -10, 0);
        expect_point(points[3], 0, -10);
        expect_point(points[4], 10, 0);
    }
}

TEST(Flatten, values_near_0_are_held_as_plain_decimals_of_28_places) {
    RecordingPlatform platform;
    session.PutCircle = 4;
    const auto points = capture_circle(0, 0, 10);
    // cos of half the session's PI is 1.615E-15; ten times that has 15 digits within 28 decimals.
    const double raw = std::cos(session.PI / 180 * 90) * 10;
    EXPECT_NE(points[1].X, 0);
    EXPECT_NE(points[1].X, raw);
    EXPECT_NEAR(points[1].X, raw, 1e-27);
}

TEST(Flatten, the_arithmetic_uses_the_sessions_PI) {
    RecordingPlatform platform;
    session.PutArc = 2;
    const double step = session.PI / 180 * ((170.25 - 10.5) / 2);
    const double start = session.PI / 180 * 10.5;
    const auto points = dxf_arc(7.25, -3.5, 123.456, 10.5, 170.25);
    for (std::int32_t j = 0; j <= 2; ++j) {
        const double angle = j * step + start;
        const double X = std::cos(angle) * 123.456 + 7.25;
        const double Y = std::sin(angle) * 123.456 + -3.5;
        EXPECT_NEAR(points[j].X, X, 1e-12);
        EXPECT_NEAR(points[j].Y, Y, 1e-12);
    }
}

TEST(Flatten, counts_and_ends_hold_for_any_arc) {
    RecordingPlatform platform;
    std::mt19937 random(80);
    const auto below = [&](double limit) {
        return limit * std::generate_canonical<double, 32>(random);
    };
    for (int arc = 0; arc < 500; ++arc) {
        session.PutArc = 1 + static_cast<std::int32_t>(random() % 60);
        session.PutCircle = session.PutArc;
        const double start = below(360);
        const double end = below(360);
        const double radius = below(50);
        const auto points = dxf_arc(0, 0, radius, start, end);
        ASSERT_EQ(points.upper(), session.PutArc);
        expect_on_circle(points, 0, radius, start);
        expect_on_circle(points, session.PutArc, radius, end);
        EXPECT_EQ(capture_circle(1, 2, radius).upper(), session.PutCircle);
        for (const Pto& point : points.all())
            EXPECT_NEAR(std::hypot(point.X, point.Y), radius, near);
    }
}

TEST(Flatten, numbers_of_segments_are_used_as_they_are) {
    RecordingPlatform platform;
    session.PutArc = 1;
    EXPECT_EQ(dxf_arc(0, 0, 1, 0, 90).upper(), 1);
    session.PutArc = 0;
    EXPECT_EQ(number_of([] { (void)dxf_arc(0, 0, 1, 0, 90); }), 11);
    EXPECT_EQ(number_of([] { (void)dxf_arc(0, 0, 1, 90, 90); }), 6);
    session.PutArc = -1;
    EXPECT_EQ(number_of([] { (void)dxf_arc(0, 0, 1, 0, 90); }), 9);
}

TEST(Flatten, a_captured_radius_goes_through_text_and_CadenaAReal) {
    RecordingPlatform platform;
    EXPECT_EQ(number_of([] { (void)capture_circle(0, 0, 0.00001); }), 5);
    session.SepDecimal = ',';
    session.PutCircle = 4;
    EXPECT_EQ(number_of([] { (void)capture_circle(0, 0, 0.00001); }), 5);
    // The last five digits of the mantissa are lost on the way.
    EXPECT_EQ(capture_circle(0, 0, 1.23456789012346E-05)[0].X, 0.00001234567890);
}

TEST(Flatten, what_leaves_the_range_raises_6) {
    RecordingPlatform platform;
    EXPECT_EQ(number_of([] { (void)dxf_circle(1e308, 0, 1.7e308); }), 6);
    EXPECT_EQ(number_of([] { (void)dxf_circle(0, 0, 1e29); }), 6);
}

TEST(Flatten, each_point_lets_the_windows_run) {
    RecordingPlatform platform;
    session.PutCircle = 20;
    (void)dxf_circle(0, 0, 1);
    EXPECT_EQ(platform.windows.yields, 21);
}

TEST(Flatten, a_closed_run_repeats_its_first_point) {
    Array<Pto> points;
    points.append({.X = 1, .Y = 2});
    points.append({.X = 3, .Y = 4});
    close_run(points);
    ASSERT_EQ(points.upper(), 2);
    EXPECT_EQ(points[2], points[0]);
}

} // namespace
} // namespace velmora
