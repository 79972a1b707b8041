#include "cutting/wire.h"

#include "cutting/outlines.h"

#include <gtest/gtest.h>

#include <limits>

namespace velmora::cutting {
namespace {

using Points = std::vector<Point>;

Sides sides_of(Points A, Points B, bool closed = true) {
    return {.A = path_of(std::move(A)), .B = path_of(std::move(B)), .closed = closed};
}

const Sides taper = sides_of({{0, 0}, {20, 0}, {20, 10}}, {{2, 1}, {12, 1}, {12, 6}});
const Distances distances = {.X = 50, .Y = 100, .Z = 100};

const Points& at(const Wire& wire, Plane plane) {
    return wire.points[index(plane)];
}

TEST(Wire, the_towers_are_where_the_adjustment_carries_the_points) {
    const Wire wire = wire_of_faces(taper, distances);
    ASSERT_EQ(wire.fault, WireFault::none);
    // A: by (100 + 50) / 100 = 1.5 of A - B; B: by 2 of B - A. The first point stands at the end
    // again.
    EXPECT_EQ(at(wire, Plane::tower_A), (Points{{-3, -1.5}, {32, -1.5}, {32, 16}, {-3, -1.5}}));
    EXPECT_EQ(at(wire, Plane::tower_B), (Points{{6, 3}, {-4, 3}, {-4, -2}, {6, 3}}));
    EXPECT_EQ(at(wire, Plane::face_A), (Points{{0, 0}, {20, 0}, {20, 10}, {0, 0}}));
}

TEST(Wire, is_straight_through_all_four_planes) {
    const Wire wire = wire_of_faces(taper, distances);
    EXPECT_EQ(wire.depth, (PerPlane<double>{-150, 0, 100, 300}));
    for (std::size_t i = 0; i < wire.size(); ++i) {
        const Point A = at(wire, Plane::face_A)[i];
        const Point slope = 0.01 * (at(wire, Plane::face_B)[i] - A);
        for (std::size_t plane = 0; plane < planes; ++plane)
            EXPECT_LT(distance(wire.points[plane][i], A + wire.depth[plane] * slope), 1e-12);
    }
}

TEST(Wire, is_found_back_from_the_towers) {
    const Wire there = wire_of_faces(taper, distances);
    Sides towers = sides_of(at(there, Plane::tower_A), at(there, Plane::tower_B));
    towers.A.points.pop_back();
    towers.B.points.pop_back();
    const Wire back = wire_of_towers(towers, distances);
    ASSERT_EQ(back.fault, WireFault::none);
    EXPECT_EQ(back.depth, there.depth);
    for (std::size_t plane = 0; plane < planes; ++plane)
        for (std::size_t i = 0; i < there.size(); ++i)
            EXPECT_EQ(back.points[plane][i], there.points[plane][i]);
}

TEST(Wire, a_face_that_stands_still_stands_when_it_is_found_back) {
    // A stays at a third while B moves on by tenths: the towers' places hold what rounding left.
    const double third = 1.0 / 3;
    Sides faces = sides_of({}, {}, false);
    for (int i = 0; i < 50; ++i) {
        faces.A.points.push_back({third, 100 * third});
        faces.B.points.push_back({i / 10.0, i / 30.0});
    }
    const Wire there = wire_of_faces(faces, {.X = 30, .Y = 70, .Z = 410});
    const Wire back =
        wire_of_towers(sides_of(at(there, Plane::tower_A), at(there, Plane::tower_B), false),
                       {.X = 30, .Y = 70, .Z = 410});
    ASSERT_EQ(back.fault, WireFault::none);
    for (const Point& point : at(back, Plane::face_A))
        EXPECT_EQ(point, (Point{0.333333333, 33.333333333}));
}

TEST(Wire, gives_the_outlines_at_the_faces_with_their_sync_points) {
    Sides towers = taper;
    towers.A.sync = {0, 2};
    towers.B.sync = {0, 1};
    const Sides faces = sides_at_faces(wire_of_towers(towers, distances), towers);
    // (A - B) of the towers divided by 1 + 1.5 + 2, and 1.5 times that back from A.
    ASSERT_EQ(faces.A.points.size(), 3U);
    EXPECT_EQ(faces.A.points[0], (Point{0.666666667, 0.333333333}));
    EXPECT_EQ(faces.A.sync, towers.A.sync);
    EXPECT_EQ(faces.B.sync, towers.B.sync);
    EXPECT_TRUE(are_paired(faces));
    EXPECT_TRUE(sides_at_faces({.fault = WireFault::no_distance}, towers).A.points.empty());
}

TEST(Wire, runs_by_the_longer_of_the_two_ways) {
    // Steps of A: 3, 4, 5; of B: 6, 0, 6.
    const Wire wire =
        wire_of_roads(sides_of({{0, 0}, {3, 0}, {3, 4}}, {{0, 0}, {6, 0}, {6, 0}}), 80);
    EXPECT_EQ(wire.along, (std::vector<double>{0, 6, 10, 16}));
    EXPECT_EQ(minutes_at(wire, 32), 0.5);
    EXPECT_EQ(minutes_at(wire, 0), 0);
    EXPECT_EQ(wire.depth, (PerPlane<double>{0, 0, 80, 80}));

    const WirePlace place = place_at(wire, 3);
    EXPECT_EQ(place.step, 0U);
    EXPECT_EQ(place.part, 0.5);
    EXPECT_EQ(place.at[index(Plane::face_A)], (Point{1.5, 0}));
    EXPECT_EQ(place.at[index(Plane::tower_B)], (Point{3, 0}));
    EXPECT_EQ(place_at(wire, 9).at[index(Plane::face_A)], (Point{3, 3}));
    EXPECT_EQ(place_at(wire, 9).at[index(Plane::face_B)], (Point{6, 0}));
    EXPECT_EQ(place_at(wire, 6).step, 1U);
    EXPECT_EQ(place_at(wire, -5).at[index(Plane::face_A)], (Point{0, 0}));
    EXPECT_EQ(place_at(wire, 99).step, 2U);
    EXPECT_EQ(place_at(wire, 99).at[index(Plane::face_B)], (Point{0, 0}));
    EXPECT_EQ(place_at(wire, std::numeric_limits<double>::quiet_NaN()).step, 0U);
}

TEST(Wire, an_open_way_does_not_come_back) {
    const Wire wire = wire_of_roads(sides_of({{0, 0}, {3, 4}}, {{0, 0}, {3, 0}}, false));
    EXPECT_EQ(wire.along, (std::vector<double>{0, 5}));
    EXPECT_EQ(at(wire, Plane::tower_A).size(), 2U);
}

TEST(Wire, its_numbers) {
    const WireNumbers numbers = numbers_of(wire_of_faces(taper, distances));
    EXPECT_DOUBLE_EQ(numbers.lengths[index(Plane::face_A)], 20 + 10 + std::hypot(20, 10));
    EXPECT_DOUBLE_EQ(numbers.lengths[index(Plane::face_B)], 10 + 5 + std::hypot(10, 5));
    EXPECT_DOUBLE_EQ(numbers.lengths[index(Plane::tower_A)], 35 + 17.5 + std::hypot(35, 17.5));
    EXPECT_DOUBLE_EQ(numbers.lengths[index(Plane::tower_B)], 10 + 5 + std::hypot(10, 5));
    EXPECT_EQ(numbers.extents[index(Plane::face_B)].width(), 10);
    // Both towers: X from -4 to 32, Y from -2 to 16.
    EXPECT_EQ(numbers.towers.width(), 36);
    EXPECT_EQ(numbers.towers.height(), 18);
    EXPECT_TRUE(fit_of(numbers, 36, 18).fits());
    EXPECT_TRUE(fit_of(numbers, 0, -1).fits());
    const Fit fit = fit_of(numbers, 30, 20);
    EXPECT_FALSE(fit.fits());
    EXPECT_EQ(fit.over_X, 6);
    EXPECT_EQ(fit.over_Y, 0);
}

TEST(Wire, what_makes_no_wire_is_said) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    Sides sides = taper;
    sides.B.points.pop_back();
    EXPECT_EQ(wire_of_faces(sides, distances).fault, WireFault::unequal_counts);
    EXPECT_EQ(wire_of_towers(sides, distances).fault, WireFault::unequal_counts);
    EXPECT_EQ(wire_of_roads(sides).fault, WireFault::unequal_counts);
    sides = taper;
    sides.paired = false;
    EXPECT_EQ(wire_of_roads(sides).fault, WireFault::unequal_counts);
    EXPECT_EQ(wire_of_roads(sides_of({{1, 1}}, {{2, 2}})).fault, WireFault::too_few_points);
    EXPECT_EQ(wire_of_faces(taper, {.X = 1, .Y = 1, .Z = 0}).fault, WireFault::no_distance);
    EXPECT_EQ(wire_of_faces(taper, {.X = nan, .Y = 1, .Z = 1}).fault, WireFault::no_distance);
    // (Z + X) / Z = -2 and (Z + Y) / Z = 1: both towers are in one plane.
    EXPECT_EQ(wire_of_towers(taper, {.X = -300, .Y = 0, .Z = 100}).fault, WireFault::no_distance);
    EXPECT_EQ(wire_of_roads(sides_of({{0, 0}, {1e16, 0}}, {{0, 0}, {1, 1}})).fault,
              WireFault::beyond_numbers);
    EXPECT_EQ(wire_of_roads(sides_of({{0, 0}, {nan, 0}}, {{0, 0}, {1, 1}})).fault,
              WireFault::beyond_numbers);
    // What is carried outward goes beyond the numbers, or beyond all of them.
    EXPECT_EQ(wire_of_faces(taper, {.X = 1e17, .Y = 1, .Z = 1}).fault, WireFault::beyond_numbers);
    EXPECT_EQ(wire_of_faces(taper, {.X = 1e308, .Y = 1, .Z = 1e-9}).fault,
              WireFault::beyond_numbers);
    const Wire faulty = wire_of_roads(sides);
    EXPECT_EQ(faulty.length(), 0);
    EXPECT_EQ(place_at(faulty, 3).step, 0U);
    EXPECT_EQ(numbers_of(faulty).towers.width(), 0);
    EXPECT_EQ(minutes_at(faulty, 100), 0);
}

TEST(Wire, points_that_are_all_equal_take_no_time) {
    const Wire wire = wire_of_roads(sides_of({{1, 1}, {1, 1}}, {{2, 2}, {2, 2}}));
    EXPECT_EQ(wire.fault, WireFault::none);
    EXPECT_EQ(wire.length(), 0);
    EXPECT_EQ(place_at(wire, 0).at[index(Plane::face_B)], (Point{2, 2}));
}

} // namespace
} // namespace velmora::cutting
