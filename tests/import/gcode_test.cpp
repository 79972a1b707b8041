#include "import/gcode.h"

#include "import/import_bytes.h"
#include "import/reading.h"

#include <gtest/gtest.h>

#include <cmath>

namespace velmora::imports {
namespace {

using Points = std::vector<Point>;

Imported read(const std::string& text, const Choices& choices = {}) {
    return import_bytes(text, "", choices);
}

void expect_near(const Points& points, const Points& expected) {
    ASSERT_EQ(points.size(), expected.size());
    for (std::size_t i = 0; i < points.size(); ++i)
        EXPECT_LT(distance(points[i], expected[i]), 1e-9) << i;
}

TEST(ImportGcode, both_ends_of_the_wire_become_two_outlines) {
    const Imported imported = read("%\nG21 G90\nG0 X0 Y0 U0 V0\nG1 X10 Y0 U8 V1 F200\n"
                                   "X10 Y10 U8\nX0 U0 V9\nX0 Y0 U0 V0\nM2\nG1 X99\n");
    EXPECT_EQ(imported.kind, Kind::gcode);
    ASSERT_EQ(imported.chains.size(), 2U);
    EXPECT_EQ(imported.chains[0].points, (Points{{0, 0}, {10, 0}, {10, 10}, {0, 10}}));
    EXPECT_EQ(imported.chains[1].points, (Points{{0, 0}, {8, 1}, {8, 1}, {0, 9}}));
    EXPECT_EQ(imported.chains[0].name, "XY");
    EXPECT_EQ(imported.chains[1].name, "UV");
    EXPECT_TRUE(imported.chains[0].closed);
    EXPECT_TRUE(imported.asks.empty());
}

TEST(ImportGcode, two_turning_axes_without_a_z_move_the_other_end) {
    const Imported imported = read("G21\nG0 X0 Y0 A0 B0\nG1 X10 Y0 A8 B1\nX10 Y10 A7 B6\n");
    ASSERT_EQ(imported.chains.size(), 2U);
    EXPECT_EQ(imported.chains[0].points, (Points{{0, 0}, {10, 0}, {10, 10}}));
    EXPECT_EQ(imported.chains[1].points, (Points{{0, 0}, {8, 1}, {7, 6}}));
    EXPECT_TRUE(imported.asks.empty());
}

TEST(ImportGcode, inches_and_relative_places) {
    const Imported imported = read("G20 G91\nG1 X1 Y0\nX1 Y2\nX-1\n");
    ASSERT_EQ(imported.chains.size(), 1U);
    EXPECT_EQ(imported.chains[0].points, (Points{{0, 0}, {25.4, 0}, {50.8, 50.8}, {25.4, 50.8}}));
}

TEST(ImportGcode, blanks_count_nowhere_and_letters_in_either_case) {
    const Imported imported = read("g21\ng1 x +0. 12 34 y 7\nN20 X5(comment)Y1;rest X9\n/X100\n");
    ASSERT_EQ(imported.chains.size(), 1U);
    EXPECT_EQ(imported.chains[0].points, (Points{{0, 0}, {0.1234, 7}, {5, 1}}));
}

TEST(ImportGcode, rapid_moves_at_the_ends_are_left_out) {
    const std::string text = "G21\nG0 X0 Y50\nG0 X-5\nG1 X10\nX20 Y30\nG0 Y90\nG1 X30\nG0 X0 Y0\n";
    const Imported imported = read(text);
    EXPECT_EQ(imported.chains.at(0).points,
              (Points{{-5, 50}, {10, 50}, {20, 30}, {20, 90}, {30, 90}}));
    EXPECT_EQ(number_said(imported, Fact::approach_left_out), 3);
    // With them it comes back to where the machine stood.
    const Imported whole = read(text, {.trim_approach = false});
    EXPECT_EQ(whole.chains.at(0).points.size(), 7U);
    EXPECT_TRUE(whole.chains.at(0).closed);
}

TEST(ImportGcode, arcs_by_centre_and_by_radius) {
    const Choices coarse{.tolerance = 100.0};
    expect_near(read("G21\nG0X0Y0\nG2X2Y0I1J0\nG1X5\n", coarse).chains.at(0).points,
                {{0, 0}, {1, 1}, {2, 0}, {5, 0}});
    expect_near(read("G21\nG0X0Y0\nG3X2Y0I1J0\nG1X5\n", coarse).chains.at(0).points,
                {{0, 0}, {1, -1}, {2, 0}, {5, 0}});
    expect_near(read("G21 G90.1\nG0X4Y0\nG3X6Y0I5J0\nG1X9\n", coarse).chains.at(0).points,
                {{4, 0}, {5, -1}, {6, 0}, {9, 0}});
    const double r = std::sqrt(2.0);
    expect_near(read("G21\nG0X0Y0\nG2X2Y0R1.41421356237309515\nG1X5\n", coarse).chains.at(0).points,
                {{0, 0}, {2, 0}, {5, 0}});
    const Imported round =
        read("G21\nG0X0Y0\nG3X2Y0R-1.41421356237309515\nG1X5\n", {.tolerance = 0.01});
    for (const Point& point : round.chains.at(0).points) {
        if (point.X < 4) {
            EXPECT_NEAR(distance(point, {1, -1}), r, 1e-6);
        }
    }
    // A full circle.
    expect_near(read("G21\nG0X0Y0\nG3X0Y0I1J0\n", coarse).chains.at(0).points,
                {{0, 0}, {1, -1}, {2, 0}, {1, 1}});
}

TEST(ImportGcode, other_names_of_the_second_end_are_asked_for) {
    const std::string text = "G21\nG1X0Y0Z0A0\nX10Y1Z8A2\nX20Y2Z9A3\n";
    const Imported imported = read(text);
    ASSERT_TRUE(asked(imported, Question::axes));
    EXPECT_EQ(imported.asks[0].options[imported.asks[0].best], "XYZA");
    EXPECT_EQ(imported.chains.at(1).points, (Points{{0, 0}, {8, 2}, {9, 3}}));
    const Imported chosen = read(text, {.axes = "XYZA"});
    EXPECT_TRUE(chosen.asks.empty());
    EXPECT_EQ(chosen.chains.size(), 2U);
}

TEST(ImportGcode, variables_and_expressions_are_refused_with_their_line) {
    for (const std::string line : {"G1 X#1", "G1 X[1+2]", "O100 sub", "G1 X1E5Y2 Q", "G1 X--1"}) {
        const Imported imported = read("G21\nG1 X1 Y1\n" + line + "\nX5\nX6\nX7\n");
        EXPECT_TRUE(imported.chains.empty()) << line;
        EXPECT_TRUE(said(imported, Fact::word_refused, 3)) << line;
        EXPECT_FALSE(is_settled(imported));
    }
}

TEST(ImportGcode, without_a_unit_it_is_asked_for) {
    const Imported imported = read("G1 X1 Y1\nX5\nX6\n");
    EXPECT_TRUE(asked(imported, Question::unit));
    const Imported inches = read("G1 X1 Y1\nX5\nX6\n", {.unit_mm = 25.4});
    EXPECT_NEAR(inches.chains.at(0).points.back().X, 152.4, 1e-9);
}

TEST(ImportGcode, planes_of_the_ends_stand_in_comments) {
    const Imported imported =
        read("(AXIS,XY_Z_POS,0)\n(AXIS,UV_Z_POS,400)\nG21\nG1 X1 Y1 U1 V1\nX5 U5\n");
    EXPECT_EQ(times(imported, Fact::layer_planes), 2U);
}

} // namespace
} // namespace velmora::imports
