// The colours that the program comes with, on the ground that it comes with.
#include "canvas/colours.h"
#include "document/state/settings.h"
#include "fakes/recording_platform.h"
#include "services/settings.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

namespace velmora {
namespace {

double linear(std::uint32_t channel) {
    const double share = channel / 255.0;
    return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
}

double luminance(std::uint32_t stored) {
    const std::uint32_t rgb = screen_rgb(stored);
    return 0.2126 * linear(rgb >> 16U & 0xFFU) + 0.7152 * linear(rgb >> 8U & 0xFFU) +
           0.0722 * linear(rgb & 0xFFU);
}

/// 1 to 21, by the rules for readable screens.
double contrast(std::uint32_t one, std::uint32_t other) {
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

struct ShippedColours : testing::Test {
    ShippedColours() { LeeSettings(); }

    test::RecordingPlatform machine{test::with_database};
    const SettingState& shown = state::settings;
};

TEST_F(ShippedColours, text_is_readable) {
    EXPECT_GE(contrast(shown.cl_coords, shown.cl_fondo), 4.5);
}

TEST_F(ShippedColours, lines_and_points_stand_out) {
    for (const std::uint32_t colour :
         {shown.cl_lineas, shown.cl_linea2, shown.cl_punto, shown.cl_puntosinc, shown.cl_puntosel})
        EXPECT_GE(contrast(colour, shown.cl_fondo), 4.5) << colour;
}

// Red and white are given. The first line lies between the others, which tell where it is; the axes
// are long and straight.
TEST_F(ShippedColours, the_first_line_and_the_axes_are_told_from_the_ground) {
    EXPECT_GE(contrast(shown.cl_linea1, shown.cl_fondo), 2.3);
    EXPECT_GE(contrast(shown.cl_ejes, shown.cl_fondo), 1.6);
}

TEST_F(ShippedColours, the_first_lines_are_told_from_each_other_and_from_the_rest) {
    EXPECT_GE(contrast(shown.cl_linea1, shown.cl_linea2), 2);
    EXPECT_GE(contrast(shown.cl_linea1, shown.cl_lineas), 3);
    EXPECT_GE(contrast(shown.cl_linea2, shown.cl_lineas), 2);
}

} // namespace
} // namespace velmora
