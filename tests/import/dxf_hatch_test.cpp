#include "import/dxf_text.h"
#include "import/import_bytes.h"
#include "import/reading.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace velmora::imports {
namespace {

using Points = std::vector<Point>;

DxfPairs hatch(const DxfPairs& loops, const std::string& count = "1") {
    return DxfPairs{{0, "HATCH"}, {8, "0"},   {10, "0"},    {20, "0"}, {30, "0"}, {210, "0"},
                    {220, "0"},   {230, "1"}, {2, "SOLID"}, {70, "1"}, {71, "0"}, {91, count}} +
           loops + DxfPairs{{75, "0"}, {76, "1"}, {98, "1"}, {10, "3"}, {20, "3"}};
}

DxfPairs vertex(const std::string& x, const std::string& y, const std::string& bulge = "0") {
    return {{10, x}, {20, y}, {42, bulge}};
}

const DxfPairs square = DxfPairs{{92, "3"}, {72, "1"}, {73, "1"}, {93, "4"}} + vertex("0", "0") +
                        vertex("4", "0") + vertex("4", "4") + vertex("0", "4") +
                        DxfPairs{{97, "0"}};

DxfPairs edge_line(const std::string& x1, const std::string& y1, const std::string& x2,
                   const std::string& y2) {
    return {{72, "1"}, {10, x1}, {20, y1}, {11, x2}, {21, y2}};
}

/// A loop of edges.
DxfPairs edges(const std::string& count, const DxfPairs& run) {
    return DxfPairs{{92, "1"}, {93, count}} + run + DxfPairs{{97, "0"}};
}

Imported read(const DxfPairs& entities) {
    return import_bytes(as_text(drawing(entities)), "", {.tolerance = 0.001});
}

double farthest_from_circle(const Points& points, const Point& centre, double radius,
                            double leave_below) {
    double most = 0;
    for (const Point& point : points)
        if (point.Y > leave_below)
            most = std::max(most, std::abs(distance(point, centre) - radius));
    return most;
}

TEST(DxfHatch, a_polyline_round_an_area_is_a_closed_chain) {
    const Imported imported = read(hatch(square));
    ASSERT_EQ(imported.chains.size(), 1U);
    EXPECT_EQ(imported.chains[0].points, (Points{{0, 0}, {4, 0}, {4, 4}, {0, 4}}));
    EXPECT_TRUE(imported.chains[0].closed);
    EXPECT_EQ(imported.report.count(Fact::read_entities), 1U);
}

TEST(DxfHatch, bulges_of_its_polyline_are_arcs) {
    const Imported imported =
        read(hatch(DxfPairs{{92, "2"}, {72, "1"}, {73, "1"}, {93, "2"}} + vertex("-5", "0", "1") +
                   vertex("5", "0", "1") + DxfPairs{{97, "0"}}));
    ASSERT_EQ(imported.chains.size(), 1U);
    EXPECT_GT(imported.chains[0].points.size(), 50U);
    EXPECT_LT(farthest_from_circle(imported.chains[0].points, {0, 0}, 5, -9), 1e-9);
}

TEST(DxfHatch, several_loops_are_several_chains) {
    const DxfPairs hole = DxfPairs{{92, "2"}, {72, "0"}, {73, "1"}, {93, "3"}, {10, "1"}, {20, "1"},
                                   {10, "2"}, {20, "1"}, {10, "2"}, {20, "2"}, {97, "0"}};
    const Imported imported = read(hatch(square + hole, "2"));
    ASSERT_EQ(imported.chains.size(), 2U);
    EXPECT_EQ(imported.chains[1].points, (Points{{1, 1}, {2, 1}, {2, 2}}));
}

TEST(DxfHatch, lines_and_an_arc_close_a_loop) {
    const DxfPairs arc = {{72, "2"}, {10, "0"},   {20, "0"}, {40, "5"},
                          {50, "0"}, {51, "180"}, {73, "1"}};
    const Imported imported = read(hatch(edges("2", arc + edge_line("-5", "0", "5", "0"))));
    ASSERT_EQ(imported.chains.size(), 1U);
    const Chain& chain = imported.chains[0];
    EXPECT_TRUE(chain.closed);
    EXPECT_NEAR(twice_area(chain.points) / 2, 12.5 * 3.14159265, 0.03);
    EXPECT_LT(farthest_from_circle(chain.points, {0, 0}, 5, 0.1), 1e-9);
}

// Its angles are counted clockwise: from 180 to 360 it runs over the upper half from the left.
TEST(DxfHatch, an_arc_that_runs_clockwise_has_its_angles_counted_so) {
    const DxfPairs arc = {{72, "2"},   {10, "0"},   {20, "0"}, {40, "5"},
                          {50, "180"}, {51, "360"}, {73, "0"}};
    const Imported imported = read(hatch(edges("2", arc + edge_line("5", "0", "-5", "0"))));
    ASSERT_EQ(imported.chains.size(), 1U);
    const Points& points = imported.chains[0].points;
    EXPECT_NEAR(std::ranges::max(points, {}, &Point::Y).Y, 5, 0.002);
    EXPECT_NEAR(std::ranges::min(points, {}, &Point::Y).Y, 0, 1e-9);
}

TEST(DxfHatch, a_whole_ellipse_is_a_loop) {
    const DxfPairs ellipse = {{72, "3"},   {10, "1"}, {20, "2"},   {11, "4"}, {21, "0"},
                              {40, "0.5"}, {50, "0"}, {51, "360"}, {73, "1"}};
    const Imported imported = read(hatch(edges("1", ellipse)));
    ASSERT_EQ(imported.chains.size(), 1U);
    for (const Point& point : imported.chains[0].points)
        EXPECT_NEAR(std::pow((point.X - 1) / 4, 2) + std::pow((point.Y - 2) / 2, 2), 1, 1e-9);
}

TEST(DxfHatch, a_spline_is_an_edge) {
    DxfPairs spline = {{72, "4"}, {94, "3"}, {73, "0"}, {74, "0"}, {95, "8"}, {96, "4"}};
    for (const char* knot : {"0", "0", "0", "0", "1", "1", "1", "1"})
        spline.emplace_back(40, knot);
    spline = spline + DxfPairs{{10, "0"}, {20, "0"}, {10, "1"}, {20, "3"}, {10, "3"},
                               {20, "3"}, {10, "4"}, {20, "0"}, {97, "0"}};
    const Imported imported = read(hatch(edges("2", spline + edge_line("4", "0", "0", "0"))));
    ASSERT_EQ(imported.chains.size(), 1U);
    EXPECT_TRUE(imported.chains[0].closed);
    // The middle of a cubic: (p0 + 3 p1 + 3 p2 + p3) / 8.
    const auto on_curve = [](const Point& point) {
        return distance(point, {2, 2.25}) < 1e-9;
    };
    EXPECT_TRUE(std::ranges::any_of(imported.chains[0].points, on_curve));
}

TEST(DxfHatch, an_outline_drawn_besides_makes_the_area_needless) {
    const Imported imported =
        read(hatch(square) + dxf_line("0", "0", "9", "0") + dxf_line("9", "0", "9", "9"));
    ASSERT_EQ(imported.chains.size(), 1U);
    EXPECT_EQ(imported.chains[0].points.size(), 3U);
}

TEST(DxfHatch, one_seen_from_below_is_mirrored) {
    DxfPairs below = hatch(square);
    for (auto& [code, value] : below)
        if (code == 230)
            value = "-1";
    const Imported imported = read(below);
    ASSERT_EQ(imported.chains.size(), 1U);
    EXPECT_EQ(box_of(imported.chains[0].points).min_X, -4);
}

TEST(DxfHatch, one_in_a_block_is_drawn_where_the_block_is) {
    const DxfPairs block =
        DxfPairs{{0, "SECTION"}, {2, "BLOCKS"}, {0, "BLOCK"}, {2, "AREA"}, {10, "0"}, {20, "0"}} +
        hatch(square) + DxfPairs{{0, "ENDBLK"}, {0, "ENDSEC"}};
    const Imported imported = import_bytes(
        as_text(block + drawing({{0, "INSERT"}, {2, "AREA"}, {10, "100"}, {20, "0"}})), "");
    ASSERT_EQ(imported.chains.size(), 1U);
    EXPECT_EQ(imported.chains[0].points[0], (Point{100, 0}));
}

TEST(DxfHatch, one_whose_numbers_break_off_is_told) {
    for (const DxfPairs& loops :
         {DxfPairs{}, DxfPairs{{92, "1"}, {93, "2"}, {72, "2"}, {10, "0"}},
          DxfPairs{{92, "1"}, {93, "1"}, {72, "9"}}, DxfPairs{{92, "2"}, {93, "1000000000"}},
          DxfPairs{{92, "1"}, {93, "1"}, {72, "3"}, {10, "0"}, {20, "0"}, {11, "1"}, {40, "0"}}}) {
        const Imported imported = read(hatch(loops));
        EXPECT_TRUE(imported.chains.empty());
        EXPECT_EQ(imported.report.count(Fact::bad_entity), 1U);
    }
}

} // namespace
} // namespace velmora::imports
