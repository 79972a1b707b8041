#include "toolkit/line_clip.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

const QRectF kBox(10, 20, 100, 50);

TEST(LineClip, keeps_a_segment_that_lies_inside) {
    const QLineF line(11, 21, 109, 69);
    EXPECT_EQ(part_inside(line, kBox), line);
}

TEST(LineClip, cuts_both_ends_at_the_edges_they_cross_in_the_direction_drawn) {
    EXPECT_EQ(part_inside({0, 30, 200, 30}, kBox), QLineF(10, 30, 110, 30));
    EXPECT_EQ(part_inside({60, 170, 60, -30}, kBox), QLineF(60, 70, 60, 20));
}

TEST(LineClip, cuts_a_slanted_segment_at_the_edge_it_meets_first) {
    EXPECT_EQ(part_inside({0, 10, 64, 74}, kBox), QLineF(10, 20, 60, 70));
}

TEST(LineClip, keeps_the_edges) {
    const QLineF edge(10, 20, 110, 20);
    EXPECT_EQ(part_inside(edge, kBox), edge);
}

TEST(LineClip, has_nothing_of_a_segment_that_passes_by) {
    EXPECT_EQ(part_inside({0, 30, 9, 30}, kBox), std::nullopt);
    EXPECT_EQ(part_inside({0, 19, 200, 19}, kBox), std::nullopt);
    EXPECT_EQ(part_inside({0, 61, 20, 81}, kBox), std::nullopt);
}

TEST(LineClip, keeps_a_point_inside_and_nothing_of_one_outside) {
    const QLineF point(50, 50, 50, 50);
    EXPECT_EQ(part_inside(point, kBox), point);
    EXPECT_EQ(part_inside({5, 50, 5, 50}, kBox), std::nullopt);
}

TEST(LineClip, brings_ends_from_far_outside_to_the_edges) {
    const auto part = part_inside({-1e12, 45, 1e12, 45}, kBox);
    ASSERT_TRUE(part.has_value());
    EXPECT_NEAR(part->x1(), 10, 1e-3);
    EXPECT_NEAR(part->x2(), 110, 1e-3);
    EXPECT_EQ(part->y1(), 45);
}

} // namespace
} // namespace velmora
