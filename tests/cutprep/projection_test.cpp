// The wings of the guide, in millimetres: what the towers cut so that the piece comes out as drawn.
#include "cutprep/projection.h"

#include "support/error_number.h"
#include "support/outline.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

using test::number_of;
using test::Points;
using test::points_of;

/// A section of this chord and thickness: trailing edge, back, leading edge.
Points section(double chord, double thickness) {
    return {{chord, 0}, {chord / 4, thickness}, {0, 0}};
}

struct ProjectionTest : testing::Test {
    void project(const Points& A, const Points& B, const Distances& to) {
        moved = projected(test::outline(A), test::outline(B), to);
    }
    /// The chord that a straight wire between the two results cuts, `from_A` of `between` on.
    double chord_cut(double from_A, double between) const {
        const double A = moved.A[0].X;
        return A + (moved.B[0].X - A) * from_A / between;
    }
    TwoSides moved;
};

// Root 240, tip 160, 400 apart; the towers 500 and 600 from them: 500 - 400 and 600 - 400.
TEST_F(ProjectionTest, the_wing_comes_out_as_drawn_from_distances_less_Z) {
    project(section(240, 24), section(160, 16), {100, 200, 400});
    EXPECT_EQ(points_of(moved.A), section(340, 34));
    EXPECT_EQ(points_of(moved.B), section(40, 4));
    EXPECT_DOUBLE_EQ(chord_cut(500, 1500), 240);
    EXPECT_DOUBLE_EQ(chord_cut(900, 1500), 160);
}

TEST_F(ProjectionTest, whole_distances_cut_another_wing) {
    project(section(240, 24), section(160, 16), {500, 600, 400});
    EXPECT_EQ(points_of(moved.A), section(420, 42));
    EXPECT_EQ(points_of(moved.B), section(-40, -4));
    EXPECT_NEAR(chord_cut(500, 1500), 266.7, 0.05);
    EXPECT_DOUBLE_EQ(chord_cut(900, 1500), 144);
}

// Towers 150 from the same wing's ends: sections 100 in from each end, 200 apart, are far enough.
TEST_F(ProjectionTest, near_towers_take_sections_nearer_to_each_other) {
    project(section(220, 22), section(180, 18), {50, 50, 200});
    EXPECT_EQ(points_of(moved.A), section(270, 27));
    EXPECT_EQ(points_of(moved.B), section(130, 13));
    EXPECT_DOUBLE_EQ(chord_cut(150, 700), 240);
    EXPECT_DOUBLE_EQ(chord_cut(550, 700), 160);
}

TEST_F(ProjectionTest, a_distance_of_0_between_the_sides_raises_11_and_a_shorter_B_9) {
    EXPECT_EQ(number_of([&] { project({{1, 1}}, {{0, 0}}, {1, 1, 0}); }), error::division_by_zero);
    EXPECT_EQ(number_of([&] { project({{1, 1}, {2, 2}}, {{0, 0}}, {1, 1, 1}); }), error::subscript);
}

} // namespace
} // namespace velmora
