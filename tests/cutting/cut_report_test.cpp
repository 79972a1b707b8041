#include "cutting/cut_report.h"

#include "cutting/outlines.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>

namespace velmora::cutting {
namespace {

constexpr double endless = std::numeric_limits<double>::infinity();

using Points = std::vector<Point>;

const Points square = {{0, 0}, {10, 0}, {10, 10}, {0, 10}};

Sides pair_of(Points A, Points B) {
    return {.A = path_of(std::move(A), {0}), .B = path_of(std::move(B), {0})};
}

std::vector<Entry> entries(const CutReport& report, Finding kind) {
    std::vector<Entry> found;
    for (const Entry& entry : report.entries)
        if (entry.kind == kind)
            found.push_back(entry);
    return found;
}

Entry only(const CutReport& report, Finding kind) {
    const std::vector<Entry> found = entries(report, kind);
    EXPECT_EQ(found.size(), 1U);
    return found.empty() ? Entry{} : found.front();
}

TEST(CutReport, two_squares_have_nothing_to_tell) {
    EXPECT_EQ(report_of(pair_of(square, square)).total(), 0U);
}

TEST(CutReport, a_side_that_stands_still_while_the_other_moves) {
    // B waits at its second corner while A goes on from (10,0) to (10,4): 4 mm.
    const CutReport report = report_of(pair_of({{0, 0}, {10, 0}, {10, 4}, {10, 10}, {0, 10}},
                                               {{0, 0}, {10, 0}, {10, 0.02}, {10, 10}, {0, 10}}));
    const Entry still = only(report, Finding::stands_still);
    EXPECT_EQ(still.side, Which::B);
    EXPECT_EQ(still.first, 1U);
    EXPECT_EQ(still.last, 2U);
    EXPECT_EQ(still.value, 4);
    EXPECT_EQ(still.way_A, 4);
    EXPECT_NEAR(still.way_B, 0.02, 1e-12);
    EXPECT_EQ(still.where, (Point{10, 0}));
    // The same step has lengths that differ by 4 / 0.02.
    EXPECT_NEAR(only(report, Finding::steps_differ).value, 200, 1e-9);
}

TEST(CutReport, standing_still_over_many_short_steps_is_one_stand) {
    Points A;
    Points B;
    for (int i = 0; i <= 20; ++i) {
        A.push_back({i / 10.0, 0});       // 2 mm in all
        B.push_back({5 + i / 1000.0, 0}); // 0.02 mm
    }
    A.push_back({2, 9});
    B.push_back({5.02, 9});
    Sides sides = pair_of(A, B);
    sides.closed = false;
    const Entry still = only(report_of(sides), Finding::stands_still);
    EXPECT_EQ(still.first, 0U);
    EXPECT_EQ(still.last, 20U);
    EXPECT_NEAR(still.value, 2, 1e-12);
    EXPECT_EQ(report_of(sides, {.still_while = 3}).count(Finding::stands_still), 0U);
    // Fifteen steps of 0.001 mm are less than 0.0155, and 1.5 mm of the other side.
    EXPECT_EQ(only(report_of(sides, {.still = 0.0155}), Finding::stands_still).last, 15U);
}

TEST(CutReport, lengths_of_a_step_that_differ_by_more_than_the_factor) {
    // First steps 9 and 3: three times. The other steps: root(9 + 100) and 10, 12 and 9, 10 and 10.
    const Sides sides =
        pair_of({{0, 0}, {9, 0}, {12, 10}, {0, 10}}, {{0, 0}, {3, 0}, {3, 10}, {-6, 10}});
    const Entry first = only(report_of(sides), Finding::steps_differ);
    EXPECT_EQ(first.first, 0U);
    EXPECT_EQ(first.last, 1U);
    EXPECT_EQ(first.value, 3);
    EXPECT_EQ(first.side, Which::B);
    EXPECT_EQ(first.way_A, 9);
    EXPECT_EQ(first.way_B, 3);
    EXPECT_EQ(report_of(sides, {.factor = 3}).count(Finding::steps_differ), 0U);
    EXPECT_EQ(report_of(sides, {.factor = 0.5}).count(Finding::steps_differ), 0U);
}

TEST(CutReport, a_step_without_length_differs_by_any_factor) {
    const CutReport report = report_of(
        pair_of({{0, 0}, {0.4, 0}, {10, 0}, {10, 10}}, {{0, 0}, {0, 0}, {10, 0}, {10, 10}}));
    EXPECT_EQ(only(report, Finding::steps_differ).value, endless);
    const Entry repeat = only(report, Finding::repeat_on_one_side);
    EXPECT_EQ(repeat.side, Which::B);
    EXPECT_EQ(repeat.first, 0U);
    EXPECT_EQ(repeat.last, 1U);
    EXPECT_EQ(repeat.value, 0.4);
}

TEST(CutReport, a_point_that_both_sides_repeat_is_left_out_of_the_files_alike) {
    const CutReport report =
        report_of(pair_of({{0, 0}, {0, 0}, {9, 0}, {9, 9}}, {{1, 1}, {1, 1}, {9, 0}, {9, 9}}));
    EXPECT_EQ(report.total(), 0U);
}

TEST(CutReport, the_closing_point_is_written_to_the_files_always) {
    // A ends where it began, B does not.
    const CutReport report =
        report_of(pair_of({{0, 0}, {9, 0}, {9, 9}, {0, 0}}, {{0, 0}, {9, 0}, {9, 9}, {0, 0.5}}));
    EXPECT_EQ(report.count(Finding::repeat_on_one_side), 0U);
}

TEST(CutReport, neighbouring_steps_with_the_same_finding_are_one_entry) {
    const CutReport report = report_of(pair_of({{0, 0}, {3, 0}, {7, 0}, {7, 7}, {0, 7}},
                                               {{0, 0}, {1, 0}, {2, 0}, {2, 7}, {-5, 7}}));
    const Entry entry = only(report, Finding::steps_differ);
    EXPECT_EQ(entry.first, 0U);
    EXPECT_EQ(entry.last, 2U);
    EXPECT_EQ(entry.value, 4);
    EXPECT_EQ(entry.way_A, 7);
    EXPECT_EQ(entry.way_B, 2);
}

TEST(CutReport, short_steps_are_compared_together) {
    // Ten steps of 0.02 and 0.03, then 0.03 and 0.02, alike in sum; each pair by itself differs by
    // half.
    Points A = {{0, 0}};
    Points B = {{0, 0}};
    for (int i = 0; i < 10; ++i) {
        A.push_back({A.back().X + (i % 2 == 0 ? 0.02 : 0.06), 0});
        B.push_back({B.back().X + (i % 2 == 0 ? 0.06 : 0.02), 0});
    }
    Sides sides = pair_of(A, B);
    sides.closed = false;
    EXPECT_EQ(report_of(sides).count(Finding::steps_differ), 0U);
    EXPECT_EQ(report_of(sides, {.least_step = 0.01}).count(Finding::steps_differ), 10U);
}

TEST(CutReport, what_is_too_short_at_the_end_is_compared_with_the_step_before_it) {
    // 1 and 0.5 alone are twice; with 0.09 and nothing behind them more.
    Sides sides = pair_of({{0, 0}, {1, 0}, {1.09, 0}}, {{0, 0}, {0.5, 0}, {0.5, 0}});
    sides.closed = false;
    const Entry entry = only(report_of(sides), Finding::steps_differ);
    EXPECT_EQ(entry.last, 2U);
    EXPECT_NEAR(entry.value, 2.18, 1e-12);
}

TEST(CutReport, lines_cross_where_a_step_runs_against_the_other_side) {
    // A goes from 0 to 6, B from 8 to 6: in between, at 6/8 of the depth, the step has no length.
    Sides sides = pair_of({{0, 0}, {6, 0}}, {{8, 0}, {6, 0}});
    sides.closed = false;
    const Entry entry = only(report_of(sides), Finding::lines_cross);
    EXPECT_EQ(entry.first, 0U);
    EXPECT_EQ(entry.last, 1U);
    EXPECT_EQ(entry.value, 2);
    EXPECT_EQ(entry.other, 0.75);
    EXPECT_EQ(report_of(sides, {.least_back = 2}).count(Finding::lines_cross), 0U);
    // Across one another, at a right angle: they pass, they don't cross.
    sides.B.points = {{0, 0}, {0, 6}};
    EXPECT_EQ(report_of(sides).count(Finding::lines_cross), 0U);
}

TEST(CutReport, points_closer_than_a_cutter_takes) {
    const Sides sides = pair_of({{0, 0}, {10, 0}, {10, 0.06}, {10, 0.1}, {0, 10}},
                                {{0, 0}, {10, 0}, {10, 0.05}, {10, 0.12}, {0, 10}});
    const Entry entry = only(report_of(sides), Finding::points_close);
    EXPECT_EQ(entry.side, Which::both);
    EXPECT_EQ(entry.first, 1U);
    EXPECT_EQ(entry.last, 3U);
    EXPECT_DOUBLE_EQ(entry.value, 0.06); // of 0.06 and 0.07, the longer of each pair
    EXPECT_EQ(report_of(sides, {.close = 0.05}).count(Finding::points_close), 0U);
}

TEST(CutReport, a_pair_is_close_where_both_sides_are) {
    const Sides sides =
        pair_of({{0, 0}, {10, 0}, {10, 0.06}, {0, 10}}, {{0, 0}, {10, 0}, {10, 0.1}, {0, 10}});
    EXPECT_EQ(report_of(sides).count(Finding::points_close), 0U);
}

TEST(CutReport, an_outline_that_crosses_itself) {
    const Points bow = {{0, 0}, {4, 4}, {4, 0}, {0, 4}};
    const CutReport report = report_of(pair_of(square, bow));
    const Entry entry = only(report, Finding::crosses_itself);
    EXPECT_EQ(entry.side, Which::B);
    EXPECT_EQ(entry.first, 0U);
    EXPECT_EQ(entry.last, 2U);
    EXPECT_EQ(entry.where, (Point{2, 2}));
}

TEST(CutReport, totals_that_differ_and_sync_points_apart) {
    Sides sides = {.A = path_of(square, {0, 2}), .B = path_of(square, {0, 3})};
    const Entry apart = only(report_of(sides), Finding::sync_apart);
    EXPECT_EQ(apart.first, 2U);
    EXPECT_EQ(apart.value, 3);
    sides.B.sync = {0};
    const Entry totals = only(report_of(sides), Finding::sync_totals_differ);
    EXPECT_EQ(totals.value, 2);
    EXPECT_EQ(totals.other, 1);
}

TEST(CutReport, runs_whose_shares_differ) {
    // Run 0 to 2: 20 of 40 mm on A; on B, of the same length, 10 of 40 mm: twice.
    const Sides sides = {.A = path_of(square, {0, 2}),
                         .B = path_of({{0, 0}, {10, 0}, {10, 10}, {0, 10}}, {0, 1}),
                         .paired = false};
    EXPECT_EQ(report_of(sides).count(Finding::runs_differ), 1U);
    const CutReport report = report_of(sides, {.run_factor = 1.4});
    const std::vector<Entry> runs = entries(report, Finding::runs_differ);
    ASSERT_EQ(runs.size(), 2U);
    EXPECT_EQ(runs[0].first, 0U);
    EXPECT_EQ(runs[0].last, 2U);
    EXPECT_EQ(runs[0].value, 2);
    EXPECT_EQ(runs[0].way_A, 20);
    EXPECT_EQ(runs[0].way_B, 10);
    // The second: 20 against 30 of 40.
    EXPECT_EQ(runs[1].first, 2U);
    EXPECT_EQ(runs[1].last, 0U);
    EXPECT_NEAR(runs[1].value, 1.5, 1e-12);
}

TEST(CutReport, sides_of_unequal_counts_are_looked_at_by_their_sync_points) {
    Sides sides = {.A = path_of(square, {0, 2}),
                   .B = path_of({{0, 0}, {5, 0}, {10, 0}, {10, 10}, {0, 10}}, {0, 3})};
    const CutReport report = report_of(sides);
    const Entry counts = only(report, Finding::counts_differ);
    EXPECT_EQ(counts.value, 4);
    EXPECT_EQ(counts.other, 5);
    EXPECT_EQ(report.total(), 1U);
    sides.paired = false;
    EXPECT_EQ(report_of(sides).total(), 0U);
    sides.A.sync.clear();
    sides.B.sync.clear();
    EXPECT_EQ(report_of(sides).count(Finding::no_sync_points), 2U);
}

TEST(CutReport, sides_that_run_round_opposite_ways) {
    const Sides sides = {.A = path_of(square), .B = turned_round(path_of(square))};
    EXPECT_EQ(report_of(sides).count(Finding::opposite_turn), 1U);
}

TEST(CutReport, a_file_against_itself_has_no_warning_of_pairing) {
    for (const std::size_t count : {2U, 3U, 10U, 200U, 5000U}) {
        const SidePath path = drop(count, 250);
        for (const bool paired : {true, false}) {
            const CutReport report = report_of({.A = path, .B = path, .paired = paired});
            for (const Entry& entry : report.entries)
                EXPECT_FALSE(speaks_of_pairing(entry.kind))
                    << count << " " << static_cast<int>(entry.kind);
        }
    }
    for (unsigned seed = 0; seed < 200; ++seed) {
        const SidePath path = path_of(random_points(3 + seed % 40, seed, 20), {0});
        const CutReport report = report_of({.A = path, .B = path});
        for (const Entry& entry : report.entries)
            EXPECT_FALSE(speaks_of_pairing(entry.kind)) << seed;
    }
}

TEST(CutReport, a_side_turned_against_the_other_has_the_warnings_of_pairing) {
    SidePath A = drop(201, 250);
    A.sync = {0, 60};
    // One point twice, so that one side stands still while the other moves.
    A.points.insert(A.points.begin() + 100, A.points[100]);
    const CutReport report = report_of({.A = A, .B = turned_round(A)}, {.still_while = 0.3});
    for (const Finding kind :
         {Finding::sync_apart, Finding::opposite_turn, Finding::runs_differ, Finding::stands_still,
          Finding::steps_differ, Finding::lines_cross, Finding::repeat_on_one_side})
        EXPECT_GT(report.count(kind), 0U) << static_cast<int>(kind);
    EXPECT_EQ(report.count(Finding::crosses_itself), 0U);
}

TEST(CutReport, sides_exchanged_have_the_same_findings) {
    const SidePath A = drop(300, 250);
    SidePath B = drop(300, 120);
    std::ranges::rotate(B.points, B.points.begin() + 20);
    const CutReport one = report_of({.A = A, .B = B});
    const CutReport other = report_of({.A = B, .B = A});
    EXPECT_GT(one.total(), 0U);
    EXPECT_EQ(one.counts, other.counts);
}

TEST(CutReport, entries_stand_by_kind_then_by_place) {
    const CutReport report = report_of({.A = drop(300, 250), .B = turned_round(drop(300, 100))});
    EXPECT_TRUE(std::ranges::is_sorted(
        report.entries, {}, [](const Entry& entry) { return std::pair(entry.kind, entry.first); }));
}

TEST(CutReport, of_each_kind_a_thousand_are_kept) {
    // Every step of A is three times, then a third of B's.
    Points A;
    Points B;
    for (int i = 0; i < 3000; ++i) {
        A.push_back({4.0 * (i / 2) + (i % 2) * 3, 0});
        B.push_back({4.0 * (i / 2) + (i % 2) * 1, 0});
    }
    Sides sides = pair_of(A, B);
    sides.closed = false;
    const CutReport report = report_of(sides);
    EXPECT_EQ(report.count(Finding::steps_differ), 2999U);
    EXPECT_EQ(entries(report, Finding::steps_differ).size(), CutReport::kept_of_each);
}

TEST(CutReport, whatever_comes_is_an_entry) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const Points point = {{3, 3}};
    const Points equal = {{3, 3}, {3, 3}, {3, 3}};
    const Points huge = {{0, 0}, {1e300, 0}, {1e300, -1e300}};
    const Points none_at_all = {{0, 0}, {nan, 1}, {1, endless}};
    const Points edge = {{-1e15, -1e15}, {1e15, -1e15}, {1e15, 1e15}, {-1e15, 1e15}};
    const std::vector<Points> all = {{}, point, equal, huge, none_at_all, edge, square};
    for (const Points& A : all)
        for (const Points& B : all)
            for (const bool closed : {false, true})
                (void)report_of(
                    {.A = path_of(A, {0, 99}), .B = path_of(B, {0, 77}), .closed = closed});
    EXPECT_EQ(report_of(pair_of({}, square)).count(Finding::too_few_points), 1U);
    EXPECT_EQ(only(report_of(pair_of(point, square)), Finding::too_few_points).value, 1);
    EXPECT_EQ(only(report_of(pair_of(square, equal)), Finding::all_points_equal).side, Which::B);
    EXPECT_EQ(only(report_of(pair_of(huge, square)), Finding::beyond_numbers).first, 1U);
    EXPECT_EQ(report_of(pair_of(edge, edge)).total(), 0U);
    const Thresholds senseless = {nan, nan, nan, nan, nan, nan, nan};
    EXPECT_EQ(report_of(pair_of(square, {{0, 0}, {1, 0}, {0, 5}, {9, 9}}), senseless)
                  .count(Finding::steps_differ),
              0U);
    EXPECT_EQ(report_of(pair_of(square, square), {-1, -1, -1, -1, -1, -1, -1}).total(), 0U);
}

} // namespace
} // namespace velmora::cutting
