#include "cutprep/runs.h"

#include "plain_syncs.h"
#include "support/error_number.h"
#include "workbench.h"

#include <gtest/gtest.h>
#include <random>

namespace velmora {
namespace {

using test::number_of;
using test::Points;
using test::SiguienteSinc;
using test::SincN;

struct RunsTest : testing::Test, test::Workbench {
    static void set_work(const Points& A, const Points& B) {
        set_sides(A, B);
        test::fill(session.TrabajoA, A);
        test::fill(session.TrabajoB, B);
    }
};

const Points kSide = {{0, 0}, {3, 4, 1}, {3, 0, 0}, {9, 8, 1}, {0, 8}};

TEST_F(RunsTest, the_next_sync_point_lies_above_the_given_index) {
    set_sides(kSide, {{0, 0, 1}, {1, 0, 2}, {2, 0, -1}});
    const SyncIndex A(session.PtosA);
    EXPECT_EQ(A.next(-1), 1);
    EXPECT_EQ(A.next(0), 1);
    EXPECT_EQ(A.next(1), 3);
    EXPECT_EQ(A.next(3), -1);
    EXPECT_EQ(A.next(4), -1);
    EXPECT_EQ(A.next(40), -1);
    // Only 1 marks a sync point.
    EXPECT_EQ(SyncIndex(session.PtosB).next(0), -1);
}

TEST_F(RunsTest, a_sync_point_is_found_by_its_ordinal_or_is_0) {
    set_sides(kSide, {{0, 0}, {1, 0}});
    const SyncIndex A(session.PtosA);
    EXPECT_EQ(A.nth(0), 1);
    EXPECT_EQ(A.nth(1), 3);
    EXPECT_EQ(A.nth(2), 0);
    EXPECT_EQ(SyncIndex(session.PtosB).nth(0), 0);
}

TEST_F(RunsTest, any_text_but_A_means_side_B) {
    set_work({{0, 0, 1}, {1, 0}}, {{0, 0}, {5, 0, 1}});
    for (const char* lado : {"B", "b", "a", "", "A2"}) {
        SCOPED_TRACE(lado);
        EXPECT_EQ(AdjustedSide(lado).syncs.next(-1), 1);
        EXPECT_EQ(AdjustedSide(lado).syncs.nth(0), 1);
        EXPECT_EQ(LargoCuerda(lado, 0), 5);
    }
}

TEST_F(RunsTest, the_chord_of_the_last_working_point_leads_to_the_first) {
    set_work(kSide, {{7, 7}});
    EXPECT_EQ(LargoCuerda("A", 0), 5);
    EXPECT_EQ(LargoCuerda("A", 2), 10);
    EXPECT_EQ(LargoCuerda("A", 4), 8);
    EXPECT_EQ(LargoCuerda("B", 0), 0);
    EXPECT_EQ(number_of([] { (void)LargoCuerda("A", 5); }), error::subscript);
    EXPECT_EQ(number_of([] { (void)LargoCuerda("A", -1); }), error::subscript);
}

TEST_F(RunsTest, a_chord_beyond_f64_raises_6) {
    set_work({{1e200, 0}, {-1e200, 0}}, {{0, 0}});
    EXPECT_EQ(number_of([] { (void)LargoCuerda("A", 0); }), error::overflow);
}

TEST_F(RunsTest, chords_come_from_the_working_copy_and_sync_points_from_the_loaded_side) {
    set_work(kSide, kSide);
    session.TrabajoA[1] = {.X = 0, .Y = 2};
    EXPECT_EQ(LargoCuerda("A", 0), 2);
    EXPECT_EQ(AdjustedSide("A").syncs.next(-1), 1);
}

TEST_F(RunsTest, a_run_holds_both_its_sync_points_and_counts_the_chord_behind_it) {
    set_work(kSide, kSide);
    AdjustedSide side("A");
    CargaTramo(side, 1, 3);
    ASSERT_EQ(side.Tramo.upper(), 2);
    // Chords 4, 10, and 9 from the last point: the total is 23.
    EXPECT_EQ(side.Tramo[0].Longitud, 4);
    EXPECT_EQ(side.Tramo[2].Longitud, 9);
    EXPECT_EQ(side.Tramo[0].PosPercent, 0);
    EXPECT_EQ(side.Tramo[1].PosPercent, 4 * 100.0 / 23);
    EXPECT_EQ(side.Tramo[2].PosPercent, 100);
    EXPECT_EQ(side.Tramo[1].X, 3);
    EXPECT_EQ(side.Tramo[2].Y, 8);
}

TEST_F(RunsTest, the_last_run_goes_over_the_end_to_the_first_sync_point) {
    set_work(kSide, kSide);
    AdjustedSide side("B");
    side.PrimerSinc = 1;
    CargaTramo(side, 3, -1);
    ASSERT_EQ(side.Tramo.upper(), 3);
    // Points 3, 4, 0, 1 with chords 9, 8, 5, 4.
    EXPECT_EQ(side.Tramo[1].PosPercent, 9 * 100.0 / 26);
    EXPECT_EQ(side.Tramo[2].PosPercent, 17 * 100.0 / 26);
    EXPECT_EQ(side.Tramo[3].X, 3);
    EXPECT_EQ(side.Tramo[3].PosPercent, 100);
}

TEST_F(RunsTest, a_run_without_a_sync_point_raises_9) {
    set_work(kSide, kSide);
    AdjustedSide side("A");
    EXPECT_EQ(number_of([&] { CargaTramo(side, -1, -1); }), error::subscript);
    EXPECT_EQ(number_of([&] { CargaTramo(side, -1, 3); }), error::subscript);
}

TEST_F(RunsTest, runs_are_located_one_after_the_other) {
    set_work(kSide, kSide);
    AdjustedSide side("A");
    locate_run(side);
    EXPECT_EQ(side.Inicio, 1);
    EXPECT_EQ(side.Fin, 3);
    locate_run(side);
    EXPECT_EQ(side.PrimerSinc, 1);
    EXPECT_EQ(side.Inicio, 3);
    EXPECT_EQ(side.Fin, -1);
}

TEST_F(RunsTest, the_prepared_search_answers_as_the_plain_ones) {
    std::mt19937 random(20021);
    for (int round = 0; round < 50; ++round) {
        SCOPED_TRACE(round);
        Points points(1 + random() % 60);
        const auto rarity = 1 + random() % 9;
        for (Pto& point : points)
            point.Sinc = random() % rarity == 0 ? 1 : 0;
        set_sides(points, points);
        const SyncIndex index(session.PtosA);
        for (std::int32_t i = -1; i <= session.PtosA.upper() + 2; ++i) {
            EXPECT_EQ(index.next(i), SiguienteSinc("A", i)) << i;
            EXPECT_EQ(index.nth(i), SincN("A", i)) << i;
        }
    }
}

} // namespace
} // namespace velmora
