#include "cutprep/adjustment.h"

#include "cutprep/projection.h"
#include "platform/database.h"
#include "support/error_number.h"
#include "workbench.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

using test::number_of;
using test::Points;
using test::points_of;

struct AdjustmentTest : testing::Test, test::Workbench {
    AdjustmentTest() { machine.open_database(); }

    /// Rows of TEMP_AJUSTE as the last pass left them: side and index, position.
    static std::vector<std::pair<std::string, double>> merged_rows() {
        std::vector<std::pair<std::string, double>> rows;
        const auto list = platform().database.open_recordset(
            "SELECT * FROM TEMP_AJUSTE ORDER BY POS_PERCENT ASC", Access::read_only);
        for (; !list->eof(); list->move_next()) {
            const auto order = std::get<std::int64_t>(list->field("ORDEN"));
            rows.emplace_back(text_of(list->field("LADO")) + std::to_string(order),
                              std::get<double>(list->field("POS_PERCENT")));
        }
        return rows;
    }
    static std::string new_syncs() {
        return session.ajuste.TxtTotalCtrlPtosNew_A + " " + session.ajuste.TxtTotalCtrlPtosNew_B;
    }
    static std::string new_points() {
        return session.ajuste.TxtTotalPtosNew_A + " " + session.ajuste.TxtTotalPtosNew_B;
    }
};

using Rows = std::vector<std::pair<std::string, double>>;

const Points kThree = {{0, 0, 1}, {4, 0}, {10, 0, 1}, {10, 3}};
const Points kFive = {{0, 0, 1}, {2, 0}, {5, 0}, {7, 0}, {10, 0, 1}, {10, 5}};

TEST_F(AdjustmentTest, a_merged_run_interpolates_each_side_for_the_rows_of_the_other) {
    set_sides(kThree, kFive);
    adjust();

    // Run 2 has three points on both sides and is copied behind the extra point (10, 3), (10, 5)
    // of run 1, which thereby stays.
    EXPECT_EQ(points_of(session.PtosA2), (Points{{0, 0, 1},
                                                 {1.2307692307692308, 0},
                                                 {4, 0},
                                                 {10, 0},
                                                 {10, 0},
                                                 {10, 3},
                                                 {10, 0},
                                                 {10, 3},
                                                 {0, 0}}));
    EXPECT_EQ(
        points_of(session.PtosB2),
        (Points{{0, 0, 1}, {2, 0}, {3, 0}, {5, 0}, {7, 0}, {10, 5}, {10, 0}, {10, 5}, {0, 0}}));
}

TEST_F(AdjustmentTest, the_rows_of_a_pass_stand_in_the_table_by_position) {
    set_sides(kThree, kFive);
    adjust();

    // The last pass was B's of run 1. Shares of 13 and 15: the chord behind the run counts.
    EXPECT_EQ(merged_rows(), (Rows{{"B0", 0},
                                   {"B1", 13.333333333333334},
                                   {"A1", 30.76923076923077},
                                   {"B2", 33.333333333333336},
                                   {"B3", 46.666666666666664},
                                   {"B4", 100},
                                   {"A2", 100}}));
}

TEST_F(AdjustmentTest, the_boxes_show_what_the_merged_passes_wrote) {
    set_sides(kThree, kFive);
    adjust();
    EXPECT_EQ(new_points(), "6 6");
    EXPECT_EQ(new_syncs(), "1 1");
}

TEST_F(AdjustmentTest, the_sync_totals_go_on_from_the_press_before) {
    set_sides(kThree, kFive);
    adjust();
    session.ajuste.TxtTotalCtrlPtosNew_B = "40 puntos";
    adjust();
    EXPECT_EQ(new_syncs(), "2 41");
    EXPECT_EQ(session.PtosA2.upper(), 8);
}

TEST_F(AdjustmentTest, sides_of_equal_runs_are_copied_with_doubled_joints_and_without_Sinc) {
    const Points A = {{0, 0, 1}, {4, 0}, {10, 0, 1}, {10, 3}};
    const Points B = {{0, 1, 1}, {9, 1}, {9, 2, 1}, {1, 2}};
    set_sides(A, B);
    platform().database.execute("DROP TABLE TEMP_AJUSTE");
    adjust();

    EXPECT_EQ(points_of(session.PtosA2),
              (Points{{0, 0}, {4, 0}, {10, 0}, {10, 0}, {10, 3}, {0, 0}}));
    EXPECT_EQ(points_of(session.PtosB2), (Points{{0, 1}, {9, 1}, {9, 2}, {9, 2}, {1, 2}, {0, 1}}));
    EXPECT_EQ(new_points(), " ");
    EXPECT_EQ(new_syncs(), " ");
}

// One run of chords 10, 3, 6.08..., 3.16... on side A, 8.24..., 2, 4.12..., 4.12... on side B,
// then a run of 4 records against 3.
const Points kEqualMergedA = {{0, 0, 1}, {10, 3}, {10, 0, 1}, {6, 1}, {3, 1}};
const Points kEqualMergedB = {{0, 1, 1}, {8, 3}, {8, 1, 1}, {4, 2}};

TEST_F(AdjustmentTest, a_merged_run_overwrites_the_last_point_of_the_equal_run_before) {
    set_sides(kEqualMergedA, kEqualMergedB);
    adjust();

    EXPECT_EQ(
        points_of(session.PtosA2),
        (Points{{0, 0}, {10, 3}, {10, 0, 1}, {6, 1}, {4.968945444589203, 1}, {3, 1}, {3, 1}}));
    // The last element is that of the working array: the last row of the other side came after
    // the own end was dropped.
    EXPECT_EQ(points_of(session.PtosB2),
              (Points{{0, 1}, {8, 3}, {8, 1, 1}, {7, 1.25}, {4, 2}, {0, 1}, {4, 2}}));
}

TEST_F(AdjustmentTest, the_projection_carries_each_pair_outward) {
    set_sides(kEqualMergedA, kEqualMergedB);
    adjust();
    const TwoSides moved = projected(session.PtosA2, session.PtosB2, {.X = 100, .Y = 50, .Z = 400});

    EXPECT_EQ(points_of(moved.A), (Points{{0, -1.25},
                                          {12.5, 3},
                                          {12.5, -1.25, 1},
                                          {4.75, 0.6875},
                                          {6.180127250325707, -0.25},
                                          {6.75, 1},
                                          {1.75, -0.25}}));
    EXPECT_EQ(points_of(moved.B), (Points{{0, 2.125},
                                          {5.75, 3},
                                          {5.75, 2.125, 1},
                                          {8.125, 1.53125},
                                          {2.9099363748371463, 3.125},
                                          {-3.375, 1},
                                          {5.125, 3.125}}));
}

TEST_F(AdjustmentTest, one_sync_point_makes_one_run_over_the_end_of_the_array) {
    set_sides({{5, 0}, {10, 0, 1}, {10, 4}, {0, 4}}, {{4, 0}, {8, 0}, {8, 3, 1}, {0, 3}, {0, 0}});
    adjust();

    EXPECT_EQ(points_of(session.PtosA2), (Points{{10, 0, 1},
                                                 {10, 4},
                                                 {5.238601215656964, 4},
                                                 {5.238601215656964, 4},
                                                 {0, 4},
                                                 {3.469550390746882, 1.2243596874024942},
                                                 {3.469550390746882, 1.2243596874024942},
                                                 {5, 0},
                                                 {0, 4}}));
    EXPECT_EQ(points_of(session.PtosB2), (Points{{8, 3, 1},
                                                 {5.866666666666667, 3},
                                                 {0, 3},
                                                 {0, 0},
                                                 {2, 0},
                                                 {4, 0},
                                                 {8, 0},
                                                 {8, 3},
                                                 {0, 0}}));
    EXPECT_EQ(new_points(), "9 9");
}

TEST_F(AdjustmentTest, rows_of_equal_position_keep_the_own_side_first_and_are_not_merged) {
    set_sides({{0, 0, 1}, {2, 0}, {4, 0, 1}, {4, 4}},
              {{0, 0, 1}, {1, 0}, {2, 0}, {3, 0}, {4, 0, 1}, {4, 4}});
    adjust();

    // A1 and B2 both lie at 25 percent: in pass A the row of B2 finds A1 passed already, in pass B
    // the row of A1 finds B2 passed.
    EXPECT_EQ(
        points_of(session.PtosA2),
        (Points{{0, 0, 1}, {0.5, 0}, {2, 0}, {4, 0}, {4, 0}, {4, 4}, {4, 0}, {4, 4}, {0, 0}}));
    EXPECT_EQ(
        points_of(session.PtosB2),
        (Points{{0, 0, 1}, {1, 0}, {2, 0}, {2.375, 0}, {3, 0}, {4, 4}, {4, 0}, {4, 4}, {0, 0}}));
}

TEST_F(AdjustmentTest, a_side_of_one_point_falls_back_on_its_first_element) {
    set_sides({{3, 4, 1}}, {{0, 0, 1}, {5, 0}});
    adjust();
    EXPECT_EQ(points_of(session.PtosA2), (Points{{3, 4, 1}, {3, 4}, {3, 4}}));
    EXPECT_EQ(points_of(session.PtosB2), (Points{{0, 0, 1}, {5, 0}, {5, 0}}));
}

TEST_F(AdjustmentTest, without_sync_points_no_run_is_made) {
    set_sides({{1, 1}, {2, 1}, {2, 2}}, {{1, 1}, {3, 3}});
    adjust();
    EXPECT_EQ(points_of(session.PtosA2), Points{Pto{}});
    EXPECT_EQ(points_of(session.PtosB2), Points{Pto{}});
    EXPECT_EQ(points_of(session.TrabajoA), (Points{{1, 1}, {2, 1}, {2, 2}}));
}

TEST_F(AdjustmentTest, a_side_B_with_fewer_sync_points_raises_9) {
    set_sides(kThree, {{0, 0, 1}, {2, 0}, {5, 5}});
    EXPECT_EQ(number_of(adjust), error::subscript);
}

TEST_F(AdjustmentTest, coincident_points_inside_a_run_raise_6) {
    set_sides({{1, 1, 1}, {1, 1}, {1, 1}}, {{0, 0, 1}, {2, 0}});
    EXPECT_EQ(number_of(adjust), error::overflow);
}

TEST_F(AdjustmentTest, each_run_is_told_before_it_is_made) {
    set_sides(kThree, kFive);
    session.PtosA2.redim(0);
    session.PtosB2.redim(0);
    std::vector<std::pair<std::int32_t, std::int32_t>> told;
    adjust_sides(2, [&](std::int32_t tramo) { told.emplace_back(tramo, session.PtosA2.upper()); });
    EXPECT_EQ(told, (std::vector<std::pair<std::int32_t, std::int32_t>>{{1, 0}, {2, 5}}));
}

TEST_F(AdjustmentTest, Sinc_and_Marca_outlive_the_projection) {
    set_sides(kThree, kFive);
    adjust();
    const TwoSides moved = projected(session.PtosA2, session.PtosB2, {.X = 2, .Y = 2, .Z = 2});
    EXPECT_EQ(moved.A[0].Sinc, 1);
    EXPECT_EQ(moved.B[0].Sinc, 1);
    EXPECT_EQ(moved.A[1].Sinc, 0);
}

} // namespace
} // namespace velmora
