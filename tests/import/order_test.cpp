#include "import/order.h"

#include <gtest/gtest.h>

namespace velmora::imports {
namespace {

using Points = std::vector<Point>;

Chain closed(Points points) {
    return {.points = std::move(points), .closed = true};
}

const Chain wedge = closed({{0, 0}, {1, -0.1}, {1, 0.1}, {0.5, 0.3}});

TEST(ImportOrder, the_trailing_edge_comes_last) {
    Chain chain = wedge;
    start_at_trailing_edge(chain);
    EXPECT_EQ(chain.points, (Points{{1, 0.1}, {0.5, 0.3}, {0, 0}, {1, -0.1}}));
    Chain clockwise = closed({{0, 0}, {0.5, 0.3}, {1, 0.1}, {1, -0.1}});
    start_at_trailing_edge(clockwise);
    EXPECT_EQ(clockwise.points, (Points{{1, -0.1}, {0, 0}, {0.5, 0.3}, {1, 0.1}}));
    Chain sharp = closed({{0, 0}, {0.5, -0.1}, {1, 0}, {0.5, 0.1}});
    start_at_trailing_edge(sharp);
    EXPECT_EQ(sharp.points.front(), (Point{1, 0}));
}

TEST(ImportOrder, the_start_moves_round_a_closed_chain) {
    Chain chain = wedge;
    start_rightmost(chain);
    EXPECT_EQ(chain.points, (Points{{1, -0.1}, {1, 0.1}, {0.5, 0.3}, {0, 0}}));
    start_leftmost(chain);
    EXPECT_EQ(chain.points, wedge.points);
}

TEST(ImportOrder, an_open_chain_begins_at_the_nearer_end) {
    Chain chain{.points = {{0, 0}, {5, 5}, {3, 0}}};
    start_rightmost(chain);
    EXPECT_EQ(chain.points.front(), (Point{3, 0}));
    start_leftmost(chain);
    EXPECT_EQ(chain.points.front(), (Point{0, 0}));
}

TEST(ImportOrder, the_direction_turns_round_the_first_point) {
    Chain chain = wedge;
    run_clockwise(chain);
    EXPECT_EQ(chain.points, (Points{{0, 0}, {0.5, 0.3}, {1, 0.1}, {1, -0.1}}));
    run_clockwise(chain);
    EXPECT_EQ(chain.points[1], (Point{0.5, 0.3}));
    run_counter_clockwise(chain);
    EXPECT_EQ(chain.points, wedge.points);
}

TEST(ImportOrder, a_chain_is_scaled_to_its_chord) {
    Chain chain = wedge;
    scale_to_chord(chain, 200);
    EXPECT_EQ(chain.points[3], (Point{100, 60}));
    Chain upright{.points = {{0, 0}, {0, 5}}};
    scale_to_chord(upright, 200);
    EXPECT_EQ(upright.points[1], (Point{0, 5}));
}

TEST(ImportOrder, doubles_go_and_are_counted) {
    Chain chain = closed({{0, 0}, {0, 0}, {1, 0}, {1, 1}, {1, 1}, {0, 0}});
    EXPECT_EQ(remove_doubles(chain), 3U);
    EXPECT_EQ(chain.points, (Points{{0, 0}, {1, 0}, {1, 1}}));
}

TEST(ImportOrder, chains_are_joined_in_the_order_given_end_to_end) {
    const std::vector<Chain> chains = {
        {.points = {{0, 0}, {1, 0}}}, {.points = {{3, 0}, {0, 0}}}, {.points = {{4, 0}, {3, 0}}}};
    EXPECT_EQ(joined(chains).points, (Points{{1, 0}, {0, 0}, {3, 0}, {4, 0}}));
    const std::vector<Chain> ring = {{.points = {{0, 0}, {1, 0}}},
                                     {.points = {{1, 0}, {1, 1}, {0, 0}}}};
    EXPECT_TRUE(joined(ring).closed);
    EXPECT_EQ(joined(ring).points.size(), 3U);
    const std::vector<Chain> alone = {wedge};
    EXPECT_TRUE(joined(alone).closed);
    EXPECT_TRUE(joined({}).points.empty());
}

} // namespace
} // namespace velmora::imports
