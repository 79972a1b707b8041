#include "toolkit/contrast.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

TEST(Contrast, is_the_ratio_of_the_two_lights) {
    EXPECT_DOUBLE_EQ(contrast(Qt::white, Qt::white), 1);
    EXPECT_NEAR(contrast(Qt::black, Qt::white), 21, 1e-9);
    EXPECT_NEAR(contrast(QColor("#777777"), Qt::white), 4.48, 0.01);
    EXPECT_NEAR(contrast(Qt::white, QColor("#ff0000")), 4.00, 0.01);
}

TEST(Contrast, a_colour_that_stands_out_already_stays) {
    EXPECT_EQ(standing_out(Qt::black, Qt::white, 3), QColor(Qt::black));
    EXPECT_EQ(standing_out(QColor("#0000ff"), Qt::white, 3), QColor("#0000ff"));
}

TEST(Contrast, a_colour_on_a_dark_ground_becomes_lighter_in_its_hue) {
    const QColor ground("#1f2227");
    const QColor blue = standing_out(QColor("#0000ff"), ground, 3);
    EXPECT_GE(contrast(blue, ground), 3);
    EXPECT_NEAR(blue.hslHueF(), 240.0 / 360, 0.01);
    EXPECT_GE(contrast(standing_out(Qt::black, ground, 3), ground), 3);
}

} // namespace
} // namespace velmora
