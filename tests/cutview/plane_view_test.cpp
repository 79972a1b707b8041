#include "cutview/plane_view.h"

#include <gtest/gtest.h>

namespace velmora::cutview {
namespace {

Extent extent_of(Spot least, Spot most) {
    Extent extent;
    extent.add(least);
    extent.add(most);
    return extent;
}

void expect_near(Spot spot, Spot wanted) {
    EXPECT_NEAR(spot.x, wanted.x, 1e-9);
    EXPECT_NEAR(spot.y, wanted.y, 1e-9);
}

/// A room of 248 by 148 leaves 200 by 100 inside its margins of 24.
PlaneView fitted_view() {
    PlaneView view;
    view.set_room(248, 148);
    view.fit(extent_of({10, 0}, {110, 20}));
    return view;
}

TEST(PlaneViewTest, the_drawing_is_as_large_as_its_tighter_side_allows_and_in_the_middle) {
    const PlaneView view = fitted_view();
    EXPECT_DOUBLE_EQ(view.scale(), 2);
    expect_near(view.on_screen({10, 10}), {24, 74});
    expect_near(view.on_screen({110, 20}), {224, 54});
}

TEST(PlaneViewTest, what_has_no_size_is_drawn_one_to_one_in_the_middle) {
    PlaneView view;
    view.set_room(100, 60);
    view.fit(extent_of({7, 7}, {7, 7}));
    EXPECT_DOUBLE_EQ(view.scale(), 1);
    expect_near(view.on_screen({7, 7}), {50, 30});
    view.fit({});
    expect_near(view.on_screen({0, 0}), {50, 30});
}

TEST(PlaneViewTest, a_line_without_height_is_fitted_by_its_width) {
    PlaneView view;
    view.set_room(148, 148);
    view.fit(extent_of({0, 5}, {50, 5}));
    EXPECT_DOUBLE_EQ(view.scale(), 2);
}

TEST(PlaneViewTest, the_place_under_the_pointer_stays_when_it_zooms) {
    PlaneView view = fitted_view();
    const Spot held = view.in_drawing({200, 30});
    view.zoom(3, {200, 30});
    EXPECT_DOUBLE_EQ(view.scale(), 6);
    expect_near(view.on_screen(held), {200, 30});
    EXPECT_FALSE(view.fitted());
}

TEST(PlaneViewTest, zooming_stops_at_its_limits) {
    PlaneView view = fitted_view();
    for (int i = 0; i < 100; ++i)
        view.zoom(0.5, {0, 0});
    EXPECT_DOUBLE_EQ(view.scale(), 0.2);
    for (int i = 0; i < 100; ++i)
        view.zoom(2, {0, 0});
    EXPECT_DOUBLE_EQ(view.scale(), 200'000);
}

TEST(PlaneViewTest, it_moves_with_the_hand) {
    PlaneView view = fitted_view();
    const Spot before = view.on_screen({50, 5});
    view.move({12, -7});
    expect_near(view.on_screen({50, 5}), {before.x + 12, before.y - 7});
}

TEST(PlaneViewTest, a_fitted_view_follows_the_room_and_a_moved_one_keeps_its_middle) {
    PlaneView view = fitted_view();
    view.set_room(448, 248);
    EXPECT_DOUBLE_EQ(view.scale(), 4);
    view.move({0, 10});
    const Spot middle = view.in_drawing(view.middle_of_room());
    view.set_room(300, 300);
    EXPECT_DOUBLE_EQ(view.scale(), 4);
    expect_near(view.in_drawing({150, 150}), middle);
}

TEST(PlaneViewTest, a_part_that_is_looked_at_stands_in_the_middle_with_its_neighbourhood) {
    PlaneView view = fitted_view(); // a scale of 2
    view.look_at(extent_of({20, 5}, {22, 5}));
    EXPECT_DOUBLE_EQ(view.scale(), 31); // 248 / (4 * 2)
    expect_near(view.on_screen({21, 5}), {124, 74});
    EXPECT_FALSE(view.fitted());
}

TEST(PlaneViewTest, a_look_at_a_part_is_never_too_far_nor_too_near) {
    PlaneView view = fitted_view();
    view.look_at(extent_of({20, 5}, {20, 5}));
    EXPECT_DOUBLE_EQ(view.scale(), 128);
    view.look_at(extent_of({20, 5}, {20.001, 5}));
    EXPECT_DOUBLE_EQ(view.scale(), 128);
    view.look_at(extent_of({10, 0}, {110, 20}));
    EXPECT_DOUBLE_EQ(view.scale(), 8);
}

TEST(PlaneViewTest, screen_and_drawing_are_each_others_way_back) {
    PlaneView view = fitted_view();
    view.zoom(1.7, {3, 90});
    view.move({-40, 11});
    expect_near(view.in_drawing(view.on_screen({33, -8})), {33, -8});
}

} // namespace
} // namespace velmora::cutview
