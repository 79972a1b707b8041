#include "generators/figures.h"

#include "fakes/recording_platform.h"
#include "support/outline.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

using test::Points;

Points points_of(std::span<const Pto> outline) {
    return {outline.begin(), outline.end()};
}

TEST(Figures, square_and_triangle_start_with_a_sync_point) {
    EXPECT_EQ(points_of(figures::square()), (Points{{0, 0, 1}, {1, 0}, {1, 1}, {0, 1}}));
    EXPECT_EQ(points_of(figures::triangle()), (Points{{0, 0, 1}, {1, 0}, {1, 1}}));
}

TEST(Figures, a_circle_has_its_points_once) {
    test::RecordingPlatform platform; // each point lets the windows run
    const Array<Pto> circle = figures::circle(4);
    ASSERT_EQ(circle.upper(), 3);
    EXPECT_EQ(circle[0], (Pto{1, 0.5, 1, 0}));
    const Points quarters = {{1, 0.5}, {0.5, 1}, {0, 0.5}, {0.5, 0}};
    for (std::int32_t i = 0; i <= circle.upper(); ++i) {
        const Pto& expected = quarters[static_cast<std::size_t>(i)];
        EXPECT_NEAR(circle[i].X, expected.X, 1e-14) << i;
        EXPECT_NEAR(circle[i].Y, expected.Y, 1e-14) << i;
    }
    EXPECT_EQ(circle[1].Sinc, 0);
}

} // namespace
} // namespace velmora
