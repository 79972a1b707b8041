// The wings of the guide, in millimetres: what the towers cut so that the piece comes out as drawn.
#include "cutprep/projection.h"

#include "workbench.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

using test::fill;
using test::Points;
using test::points_of;

/// A section of this chord and thickness: trailing edge, back, leading edge.
Points section(double chord, double thickness) {
    return {{chord, 0}, {chord / 4, thickness}, {0, 0}};
}

struct ProjectionTest : testing::Test, test::Workbench {
    static void project(const Points& A, const Points& B, double X, double Y, double Z) {
        fill(session.PtosA2, A);
        fill(session.PtosB2, B);
        session.OptX = X;
        session.OptY = Y;
        session.OptZ = Z;
        project_results();
    }
    /// The chord that a straight wire between the two results cuts, `from_A` of `between` on.
    static double chord_cut(double from_A, double between) {
        const double A = session.PtosA2[0].X;
        return A + (session.PtosB2[0].X - A) * from_A / between;
    }
};

// Root 240, tip 160, 400 apart; the towers 500 and 600 from them: 500 - 400 and 600 - 400.
TEST_F(ProjectionTest, the_wing_comes_out_as_drawn_from_distances_less_Z) {
    project(section(240, 24), section(160, 16), 100, 200, 400);
    EXPECT_EQ(points_of(session.PtosA2), section(340, 34));
    EXPECT_EQ(points_of(session.PtosB2), section(40, 4));
    EXPECT_DOUBLE_EQ(chord_cut(500, 1500), 240);
    EXPECT_DOUBLE_EQ(chord_cut(900, 1500), 160);
}

TEST_F(ProjectionTest, whole_distances_cut_another_wing) {
    project(section(240, 24), section(160, 16), 500, 600, 400);
    EXPECT_EQ(points_of(session.PtosA2), section(420, 42));
    EXPECT_EQ(points_of(session.PtosB2), section(-40, -4));
    EXPECT_NEAR(chord_cut(500, 1500), 266.7, 0.05);
    EXPECT_DOUBLE_EQ(chord_cut(900, 1500), 144);
}

// Towers 150 from the same wing's ends: sections 100 in from each end, 200 apart, are far enough.
TEST_F(ProjectionTest, near_towers_take_sections_nearer_to_each_other) {
    project(section(220, 22), section(180, 18), 50, 50, 200);
    EXPECT_EQ(points_of(session.PtosA2), section(270, 27));
    EXPECT_EQ(points_of(session.PtosB2), section(130, 13));
    EXPECT_DOUBLE_EQ(chord_cut(150, 700), 240);
    EXPECT_DOUBLE_EQ(chord_cut(550, 700), 160);
}

} // namespace
} // namespace velmora
