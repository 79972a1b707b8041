#include "import/chains.h"

#include "import/end_nodes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <random>

namespace velmora::imports {
namespace {

using Points = std::vector<Point>;

struct Drawn {
    std::vector<Chain> chains;
    Report report;
};

Drawn join(const std::vector<Points>& runs, const ChainChoices& choices = {}) {
    Pieces pieces;
    std::size_t line = 0;
    for (const Points& run : runs) {
        pieces.begin(++line, 0);
        for (const Point& point : run)
            pieces.add(point);
        pieces.end(false);
    }
    Drawn drawn;
    drawn.chains = chained(pieces, choices, {"0"}, drawn.report);
    return drawn;
}

double said(const Drawn& drawn, Fact fact) {
    for (const Remark& remark : drawn.report.remarks()) {
        if (remark.fact == fact)
            return remark.number;
    }
    return -1;
}

const Points square = {{0, 0}, {10, 0}, {10, 10}, {0, 10}};

TEST(ImportChains, pieces_in_any_order_and_direction_make_one_outline) {
    const Drawn drawn =
        join({{{10, 10}, {10, 0}}, {{0, 0}, {0, 10}}, {{0, 0}, {10, 0}}, {{10, 10}, {0, 10}}});
    ASSERT_EQ(drawn.chains.size(), 1U);
    EXPECT_TRUE(drawn.chains[0].closed);
    EXPECT_EQ(drawn.chains[0].points, square);
    EXPECT_EQ(drawn.chains[0].line, 1U);
    EXPECT_TRUE(drawn.report.remarks().empty());
}

TEST(ImportChains, an_open_run_begins_at_its_left_end) {
    const Drawn drawn = join({{{5, 5}, {9, 0}}, {{5, 5}, {1, 1}}});
    ASSERT_EQ(drawn.chains.size(), 1U);
    EXPECT_FALSE(drawn.chains[0].closed);
    EXPECT_EQ(drawn.chains[0].points, (Points{{1, 1}, {5, 5}, {9, 0}}));
}

TEST(ImportChains, closed_ones_come_first_then_the_longer) {
    const Drawn drawn = join({{{100, 0}, {200, 0}},
                              {{50, 50}, {51, 50}, {51, 51}, {50, 50}},
                              {{0, 0}, {10, 0}, {10, 10}, {0, 10}, {0, 0}}});
    ASSERT_EQ(drawn.chains.size(), 3U);
    EXPECT_EQ(drawn.chains[0].points, square);
    EXPECT_EQ(drawn.chains[1].points.size(), 3U);
    EXPECT_EQ(drawn.chains[2].points.size(), 2U);
}

TEST(ImportChains, doubles_and_what_has_no_length_are_removed_and_counted) {
    const Points side = {{0, 0}, {10, 0}};
    const Drawn drawn = join({side,
                              {{10, 0}, {0, 0}},
                              side,
                              {{10, 0}, {10, 10}},
                              {{10, 10}, {0, 0}},
                              {{3, 3}},
                              {{4, 4}, {4, 4}}});
    ASSERT_EQ(drawn.chains.size(), 1U);
    EXPECT_TRUE(drawn.chains[0].closed);
    EXPECT_EQ(drawn.chains[0].points, (Points{{0, 0}, {10, 0}, {10, 10}}));
    EXPECT_EQ(said(drawn, Fact::doubles), 2);
    EXPECT_EQ(said(drawn, Fact::zero_lengths), 2);
    EXPECT_EQ(drawn.report.count(Fact::junction), 0U);
}

TEST(ImportChains, two_ways_between_the_same_ends_are_no_doubles) {
    const Drawn drawn = join({{{0, 0}, {5, 1}, {10, 0}}, {{0, 0}, {5, -1}, {10, 0}}});
    ASSERT_EQ(drawn.chains.size(), 1U);
    EXPECT_EQ(drawn.chains[0].points, (Points{{0, 0}, {5, -1}, {10, 0}, {5, 1}}));
    EXPECT_EQ(drawn.report.count(Fact::doubles), 0U);
}

TEST(ImportChains, closed_doubles_are_found_wherever_they_start) {
    const Drawn drawn = join({{{0, 0}, {10, 0}, {10, 10}, {0, 10}, {0, 0}},
                              {{10, 10}, {10, 0}, {0, 0}, {0, 10}, {10, 10}},
                              {{0, 0}, {10, 0}, {10, 10}, {5, 5}, {0, 10}, {0, 0}}});
    EXPECT_EQ(drawn.chains.size(), 2U);
    EXPECT_EQ(said(drawn, Fact::doubles), 1);
    EXPECT_EQ(join({{{0, 0}, {10, 0}, {10, 10}, {0, 0}}, {{0, 0}, {10, 0}, {10, 10}, {0, 0}}},
                   {.remove_doubles = false})
                  .chains.size(),
              2U);
}

TEST(ImportChains, the_smallest_turn_goes_on_where_more_meet) {
    // Two straight lines that cross in pieces.
    const Drawn drawn =
        join({{{-5, 0}, {0, 0}}, {{0, 5}, {0, 0}}, {{0, 0}, {5, 0.5}}, {{0, 0}, {0.5, -5}}});
    ASSERT_EQ(drawn.chains.size(), 2U);
    EXPECT_EQ(drawn.chains[0].points, (Points{{-5, 0}, {0, 0}, {5, 0.5}}));
    EXPECT_EQ(drawn.chains[1].points, (Points{{0, 5}, {0, 0}, {0.5, -5}}));
    EXPECT_EQ(drawn.report.count(Fact::junction), 1U);
    EXPECT_EQ(said(drawn, Fact::junction), 0);
}

TEST(ImportChains, a_tail_does_not_open_an_outline) {
    // The tail goes straight on from the lower side.
    const Drawn drawn = join({{{0, 0}, {10, 0}},
                              {{10, 0}, {10, 10}},
                              {{10, 10}, {0, 10}},
                              {{0, 10}, {0, 0}},
                              {{10, 0}, {20, 0}}});
    ASSERT_EQ(drawn.chains.size(), 2U);
    EXPECT_TRUE(drawn.chains[0].closed);
    EXPECT_EQ(drawn.chains[0].points, square);
    EXPECT_EQ(drawn.chains[1].points, (Points{{10, 0}, {20, 0}}));
}

TEST(ImportChains, gaps_within_a_millionth_of_the_size_are_closed_and_told) {
    const Drawn drawn = join({{{0, 0}, {10, 0}}, {{10.000004, 0}, {10, 10}}, {{10, 10}, {0, 0}}});
    ASSERT_EQ(drawn.chains.size(), 1U);
    EXPECT_TRUE(drawn.chains[0].closed);
    EXPECT_EQ(drawn.chains[0].points, (Points{{0, 0}, {10, 0}, {10, 10}}));
    EXPECT_NEAR(said(drawn, Fact::largest_gap), 4e-6, 1e-9);
    EXPECT_EQ(join({{{0, 0}, {10, 0}}, {{10.00004, 0}, {10, 10}}}).chains.size(), 2U);
}

TEST(ImportChains, wider_gaps_are_bridged_on_request_the_nearest_first) {
    const std::vector<Points> runs = {
        {{0, 0}, {10, 0}}, {{10.2, 0}, {10, 10}}, {{10.3, 0}, {20, 0}}, {{0, 0.1}, {9.9, 10}}};
    EXPECT_EQ(join(runs).chains.size(), 4U);
    const Drawn drawn = join(runs, {.gap = 0.25});
    // Between (10.2, 0) and (10.3, 0), (0, 0) and (0, 0.1), (10, 10) and (9.9, 10) lie 0.1 each.
    ASSERT_EQ(drawn.chains.size(), 1U);
    EXPECT_EQ(
        drawn.chains[0].points,
        (Points{{10, 0}, {0, 0}, {0, 0.1}, {9.9, 10}, {10, 10}, {10.2, 0}, {10.3, 0}, {20, 0}}));
}

TEST(ImportChains, a_short_piece_is_not_closed_on_itself_by_a_wide_gap) {
    const Drawn drawn = join({{{0, 0}, {0.1, 0}}, {{0.3, 0}, {10, 0}}}, {.gap = 0.5});
    ASSERT_EQ(drawn.chains.size(), 1U);
    EXPECT_EQ(drawn.chains[0].points, (Points{{0, 0}, {0.1, 0}, {0.3, 0}, {10, 0}}));
}

/// Loops, crossings, tails, doubles: all that is decided somewhere.
std::vector<Points> busy_drawing(std::mt19937& random) {
    std::vector<Points> runs;
    const auto any = [&](int below) {
        return static_cast<double>(random() % static_cast<unsigned>(below));
    };
    for (int i = 0; i < 60; ++i) {
        const Point from{any(8), any(8)};
        const Point to{any(8), any(8)};
        runs.push_back({from, {from.X + 0.25, to.Y + 0.5}, to});
    }
    for (int i = 0; i < 20; ++i)
        runs.push_back(
            {{20 + std::cos(i), 20 + std::sin(i)}, {20 + std::cos(i + 1), 20 + std::sin(i + 1)}});
    return runs;
}

TEST(ImportChains, neither_order_nor_direction_of_the_pieces_changes_the_result) {
    std::mt19937 random(11);
    for (int round = 0; round < 40; ++round) {
        std::vector<Points> runs = busy_drawing(random);
        const Drawn first = join(runs, {.gap = round % 2 == 0 ? std::optional(0.3) : std::nullopt});
        std::ranges::shuffle(runs, random);
        for (Points& run : runs) {
            if (random() % 2 == 0)
                std::ranges::reverse(run);
        }
        const Drawn second =
            join(runs, {.gap = round % 2 == 0 ? std::optional(0.3) : std::nullopt});
        ASSERT_EQ(first.chains.size(), second.chains.size()) << round;
        for (std::size_t i = 0; i < first.chains.size(); ++i) {
            EXPECT_EQ(first.chains[i].points, second.chains[i].points) << round << " " << i;
            EXPECT_EQ(first.chains[i].closed, second.chains[i].closed);
        }
        EXPECT_EQ(first.report.count(Fact::junction), second.report.count(Fact::junction));
        EXPECT_EQ(said(first, Fact::doubles), said(second, Fact::doubles));
    }
}

TEST(ImportChains, a_star_that_tells_nothing_is_left_in_its_rays) {
    std::vector<Points> rays;
    for (int i = 0; i < 100; ++i)
        rays.push_back({{0, 0}, {std::cos(i), std::sin(i)}});
    EXPECT_EQ(join(rays).chains.size(), 100U);
}

TEST(ImportChains, many_places_close_together_take_no_time_for_every_pair) {
    std::vector<Points> runs = {{{0, 0}, {1e9, 0}}};
    std::mt19937 random(3);
    std::uniform_real_distribution<double> anywhere(0, 400);
    for (int i = 0; i < 50'000; ++i)
        runs.push_back({{anywhere(random), anywhere(random)}, {anywhere(random), 500}});
    const Drawn drawn = join(runs, {.gap = 100});
    EXPECT_GE(drawn.chains.size(), 1U);
}

TEST(ImportEndNodes, places_within_the_gap_have_one_number) {
    const std::vector<Point> places = {{0, 0}, {5, 5}, {0.05, 0}, {0, 0}, {0.2, 0}, {5, 4.95}};
    const auto nodes = nodes_of(places, 0.1);
    EXPECT_EQ(nodes, (std::vector<std::uint32_t>{0, 1, 0, 0, 2, 1}));
    // Two cells of the search meet at 0.8.
    const std::vector<Point> across = {{0, 0}, {0.79, 0}, {0.81, 0}, {0.79, 0.79}, {0.81, 0.81}};
    EXPECT_EQ(nodes_of(across, 0.1), (std::vector<std::uint32_t>{0, 1, 1, 2, 2}));
    EXPECT_TRUE(nodes_of({}, 0.1).empty());
}

} // namespace
} // namespace velmora::imports
