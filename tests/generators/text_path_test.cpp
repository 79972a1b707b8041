#include "generators/text_path.h"

#include "support/error_number.h"

#include <array>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <vector>

namespace velmora {
namespace {

using testing::ElementsAre;

using PathPoint = SeltextoWindow::PathPoint;

struct Path {
    std::int32_t result = 0;
    std::vector<PathPoint> points;
    std::vector<int> types;
};

Path path_of(const std::vector<Figure>& figures, std::size_t room = 1000) {
    std::vector<PathPoint> points(room);
    std::vector<std::uint8_t> types(room);
    const std::int32_t result = GetPath(figures, points, types);
    const auto count = static_cast<std::ptrdiff_t>(std::max(result, 0));
    return {
        result, {points.begin(), points.begin() + count}, {types.begin(), types.begin() + count}};
}

/// A zigzag of so many places that none is the first again.
Figure run_of(int places) {
    Figure figure;
    for (int i = 0; i < places; ++i)
        figure.push_back({static_cast<double>(i), static_cast<double>(i % 2)});
    return figure;
}

TEST(TextPath, begins_a_figure_with_a_move_and_ends_it_with_a_closing_line) {
    const Path path = path_of({{{20, 20}, {30, 20}, {30, 40}, {20, 40}}});
    EXPECT_EQ(path.result, 4);
    EXPECT_THAT(path.points, ElementsAre(PathPoint{20, 20}, PathPoint{30, 20}, PathPoint{30, 40},
                                         PathPoint{20, 40}));
    EXPECT_THAT(path.types, ElementsAre(6, 2, 2, 3));
}

TEST(TextPath, holds_the_figures_one_behind_the_other) {
    const Path path = path_of({{{0, 0}, {4, 0}, {0, 4}}, {{9, 0}, {9, 5}}});
    EXPECT_THAT(path.types, ElementsAre(6, 2, 3, 6, 3));
    EXPECT_EQ(path.points[3], (PathPoint{9, 0}));
}

TEST(TextPath, does_not_come_back_to_the_first_place) {
    EXPECT_THAT(path_of({{{0, 0}, {4, 0}, {0, 4}, {0, 0}}}).types, ElementsAre(6, 2, 3));
    EXPECT_THAT(path_of({{{0, 0}, {4, 0}, {0, 4}, {0.3, -0.3}}}).types, ElementsAre(6, 2, 3));
}

TEST(TextPath, rounds_to_whole_pixels_with_ties_to_even) {
    EXPECT_THAT(path_of({{{0.5, 1.5}, {-2.5, 2.49}, {3.51, -0.2}}}).points,
                ElementsAre(PathPoint{0, 2}, PathPoint{-2, 2}, PathPoint{4, 0}));
}

TEST(TextPath, steps_within_one_pixel_count_once) {
    EXPECT_THAT(path_of({{{0, 0}, {0.2, 0.1}, {4, 0}, {4.4, 0}, {0, 4}}}).points,
                ElementsAre(PathPoint{0, 0}, PathPoint{4, 0}, PathPoint{0, 4}));
}

TEST(TextPath, a_figure_within_one_pixel_is_a_move_alone) {
    const Path path = path_of({{{7, 7}, {7.2, 7}, {7.2, 7.2}}});
    EXPECT_THAT(path.points, ElementsAre(PathPoint{7, 7}));
    EXPECT_THAT(path.types, ElementsAre(6));
}

// Fonts keep places by which accents are hung as figures of one point.
TEST(TextPath, passes_over_figures_of_one_place) {
    EXPECT_THAT(path_of({{{5, 5}}, {}, {{5, 5}, {5, 5}}, {{0, 0}, {4, 0}, {0, 4}}}).types,
                ElementsAre(6, 2, 3));
}

TEST(TextPath, no_figure_gives_no_entry) {
    EXPECT_EQ(path_of({}).result, 0);
    EXPECT_EQ(path_of({{}, {{1, 1}}}).result, 0);
}

TEST(TextPath, as_many_entries_as_there_is_room_for_fit) {
    EXPECT_EQ(path_of({run_of(1000)}).result, 1000);
    EXPECT_EQ(path_of({run_of(400), run_of(600)}).result, 1000);
}

TEST(TextPath, one_entry_more_is_a_failure) {
    EXPECT_EQ(path_of({run_of(1001)}).result, -1);
    EXPECT_EQ(path_of({run_of(400), run_of(601)}).result, -1);
    EXPECT_EQ(path_of({run_of(1000), {{5000, 0}, {5000, 5}}}).result, -1);
}

TEST(TextPath, the_shorter_list_is_the_room) {
    const std::array<Figure, 1> figures = {run_of(3)};
    std::array<PathPoint, 9> points;
    std::array<std::uint8_t, 2> types;
    EXPECT_EQ(GetPath(figures, points, types), -1);
}

TEST(TextPath, a_place_beyond_32_bits_is_an_overflow) {
    EXPECT_EQ(test::number_of([] {
                  static_cast<void>(path_of({{{0, 0}, {3e9, 0}}}));
              }),
              error::overflow);
}

} // namespace
} // namespace velmora
