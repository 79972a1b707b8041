#include "cutview/space_view.h"

#include <array>
#include <cmath>
#include <gtest/gtest.h>

namespace velmora::cutview {
namespace {

/// A machine of 300 along the wire, 100 deep and 50 high.
constexpr std::array<Place, 2> kMachine = {{{0, 0, 0}, {100, 50, 300}}};

/// Room for 300 by 100 inside the margins of 26.
SpaceView view_from(Turn turn) {
    SpaceView view;
    view.set_room(352, 152);
    view.turn_to(turn);
    view.fit(kMachine);
    return view;
}

void expect_at(const Seen& seen, double x, double y) {
    EXPECT_NEAR(seen.x, x, 1e-9);
    EXPECT_NEAR(seen.y, y, 1e-9);
}

TEST(SpaceViewTest, the_front_shows_the_wire_from_left_to_right) {
    const SpaceView view = view_from(kFront);
    expect_at(view.seen({0, 0, 0}), 26, 101);
    expect_at(view.seen({0, 50, 0}), 26, 51);
    expect_at(view.seen({0, 0, 300}), 326, 101);
    EXPECT_LT(view.seen({0, 0, 0}).depth, view.seen({100, 0, 0}).depth);
}

TEST(SpaceViewTest, the_side_shows_the_outlines_as_they_are_drawn) {
    const SpaceView view = view_from(kSide);
    const Seen origin = view.seen({0, 0, 0});
    const Seen along = view.seen({100, 0, 0});
    EXPECT_NEAR(along.x - origin.x, 200, 1e-9); // 50 high in a room of 100
    EXPECT_NEAR(along.y, origin.y, 1e-9);
    EXPECT_LT(view.seen({0, 50, 0}).y, origin.y);
    EXPECT_NEAR(view.seen({0, 0, 300}).x, origin.x, 1e-9);
    EXPECT_LT(view.seen({0, 0, 300}).depth, origin.depth);
}

TEST(SpaceViewTest, the_plan_shows_the_wire_from_left_to_right_and_x_upwards) {
    const SpaceView view = view_from(kPlan);
    expect_at(view.seen({0, 0, 0}), 26, 126);
    expect_at(view.seen({100, 50, 300}), 326, 26);
    EXPECT_LT(view.seen({0, 50, 0}).depth, view.seen({0, 0, 0}).depth);
}

TEST(SpaceViewTest, what_is_as_long_is_drawn_as_long_from_every_side) {
    SpaceView view = view_from(kFront);
    const auto length = [&](Place to) {
        const Seen from = view.seen({0, 0, 0});
        const Seen there = view.seen(to);
        // The scale is 1: 300 fill 300.
        return std::hypot(there.x - from.x, there.y - from.y, there.depth - from.depth);
    };
    view.turn_by(77, -40);
    for (const Place to : {Place{300, 0, 0}, Place{0, 300, 0}, Place{0, 0, 300}})
        EXPECT_NEAR(length(to), 300, 1e-9);
}

TEST(SpaceViewTest, no_turn_shows_the_machine_as_in_a_mirror) {
    // Three places round which the hand turns left keep doing so where they face who looks.
    for (const double around : {-170.0, -90.0, -38.0, 0.0, 61.0}) {
        const SpaceView view = view_from({around, 35});
        const Seen o = view.seen({0, 0, 0});
        const Seen x = view.seen({1, 0, 0});
        const Seen y = view.seen({0, 1, 0});
        const Seen z = view.seen({0, 0, 1});
        const auto flat = [&](const Seen& a, const Seen& b) {
            return (a.x - o.x) * -(b.y - o.y) + (a.y - o.y) * (b.x - o.x);
        };
        // x times y is z: it comes towards who looks where their turn is to the left.
        EXPECT_EQ(flat(x, y) > 0, z.depth < o.depth) << around;
        EXPECT_EQ(flat(y, z) > 0, x.depth < o.depth) << around;
    }
}

TEST(SpaceViewTest, everything_is_in_the_room_after_a_fit_from_any_turn) {
    for (const Turn turn : {kInSpace, Turn{10, -70}, Turn{140, 5}}) {
        const SpaceView view = view_from(turn);
        for (const Place& place : kMachine) {
            const Seen seen = view.seen(place);
            EXPECT_GE(seen.x, 25.9);
            EXPECT_LE(seen.x, 326.1);
            EXPECT_GE(seen.y, 25.9);
            EXPECT_LE(seen.y, 126.1);
        }
    }
}

TEST(SpaceViewTest, the_hand_does_not_turn_it_over_the_top) {
    SpaceView view = view_from(kInSpace);
    view.turn_by(0, 300);
    EXPECT_DOUBLE_EQ(view.turn().over, 90);
    view.turn_by(350, -500);
    EXPECT_DOUBLE_EQ(view.turn().over, -90);
    EXPECT_DOUBLE_EQ(view.turn().around, -48);
}

TEST(SpaceViewTest, the_place_under_the_pointer_stays_when_it_zooms) {
    SpaceView view = view_from(kFront);
    const Place corner{0, 50, 300};
    const Seen before = view.seen(corner);
    view.zoom(2.5, before.spot());
    expect_at(view.seen(corner), before.x, before.y);
    EXPECT_FALSE(view.fitted());
}

TEST(SpaceViewTest, it_moves_with_the_hand) {
    SpaceView view = view_from(kPlan);
    const Seen before = view.seen({1, 2, 3});
    view.move({-9, 4});
    expect_at(view.seen({1, 2, 3}), before.x - 9, before.y + 4);
}

TEST(SpaceViewTest, a_scene_without_size_or_places_is_drawn_in_the_middle) {
    SpaceView view;
    view.set_room(100, 80);
    view.fit({});
    expect_at(view.seen({0, 0, 0}), 50, 40);
    const std::array<Place, 1> one = {{{4, 4, 4}}};
    view.fit(one);
    expect_at(view.seen({4, 4, 4}), 50, 40);
}

} // namespace
} // namespace velmora::cutview
