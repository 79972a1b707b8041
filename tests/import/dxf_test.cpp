#include "import/dxf.h"

#include "import/dxf_text.h"
#include "import/import_bytes.h"
#include "import/reading.h"

#include <gtest/gtest.h>

#include <cmath>

namespace velmora::imports {
namespace {

using Points = std::vector<Point>;

Imported read(const DxfPairs& entities, const Choices& choices = {}) {
    return import_bytes(as_text(drawing(entities)), "x.dxf", choices);
}

Points only(const Imported& imported) {
    return imported.chains.size() == 1 ? imported.chains[0].points : Points{};
}

void expect_near(const Points& points, const Points& expected) {
    ASSERT_EQ(points.size(), expected.size());
    for (std::size_t i = 0; i < points.size(); ++i)
        EXPECT_LT(distance(points[i], expected[i]), 1e-9) << i;
}

const DxfPairs square = dxf_line("0", "0", "10", "0") + dxf_line("10", "10", "10", "0") +
                        dxf_line("10", "10", "0", "10") + dxf_line("0", "0", "0", "10");
const Points corners = {{0, 0}, {10, 0}, {10, 10}, {0, 10}};

TEST(ImportDxf, lines_become_an_outline_whatever_the_form_of_the_file) {
    for (const std::string& bytes :
         {as_text(drawing(square)), as_text(drawing(square), "\r\n"),
          as_text(drawing(square), "\r"), as_binary(drawing(square), true),
          as_binary(drawing(square), false), "\xEF\xBB\xBF" + as_text(drawing(square)),
          as_text(DxfPairs{{999, "made by hand"}} + drawing(square)), as_text(square)}) {
        const Imported imported = import_bytes(bytes, "");
        EXPECT_EQ(imported.kind, Kind::dxf);
        EXPECT_EQ(only(imported), corners);
        EXPECT_EQ(number_said(imported, Fact::read_entities), 4);
    }
}

TEST(ImportDxf, groups_stand_in_any_order) {
    expect_near(only(read({{0, "LINE"}, {21, "5"}, {11, "4"}, {20, "3"}, {8, "0"}, {10, "2"}})),
                {{2, 3}, {4, 5}});
    expect_near(only(read({{0, "LINE"}, {10, "2"}, {11, "4"}, {20, "3"}, {21, "5"}})),
                {{2, 3}, {4, 5}});
}

TEST(ImportDxf, arcs_run_counter_clockwise_from_start_to_end) {
    const DxfPairs arc = {{0, "ARC"}, {10, "1"}, {20, "2"}, {40, "5"}, {50, "270"}, {51, "90"}};
    const Points points = only(read(arc, {.tolerance = 100.0}));
    expect_near(points, {{1, -3}, {6, 2}, {1, 7}});
    EXPECT_EQ(only(read(arc, {.tolerance = 0.01})).size(), 26U);
    const Imported full =
        read({{0, "ARC"}, {10, "0"}, {20, "0"}, {40, "1"}, {50, "30"}, {51, "390"}});
    EXPECT_TRUE(full.chains.at(0).closed);
}

TEST(ImportDxf, a_circle_is_closed) {
    const Imported imported =
        read({{0, "CIRCLE"}, {10, "1"}, {20, "2"}, {40, "5"}}, {.tolerance = 100.0});
    EXPECT_TRUE(imported.chains.at(0).closed);
    expect_near(only(imported), {{-4, 2}, {1, -3}, {6, 2}, {1, 7}});
}

TEST(ImportDxf, an_ellipse_by_its_long_axis_and_ratio) {
    const DxfPairs whole = {{0, "ELLIPSE"}, {10, "0"}, {20, "0"}, {11, "0"}, {21, "4"}, {40, ".5"}};
    expect_near(only(read(whole, {.tolerance = 100.0})), {{-2, 0}, {0, -4}, {2, 0}, {0, 4}});
    const DxfPairs part = whole + DxfPairs{{41, "0"}, {42, "1.5707963267948966"}};
    expect_near(only(read(part, {.tolerance = 100.0})), {{-2, 0}, {0, 4}});
    const DxfPairs from_below =
        whole +
        DxfPairs{{210, "0"}, {220, "0"}, {230, "-1"}, {41, "0"}, {42, "1.5707963267948966"}};
    expect_near(only(read(from_below, {.tolerance = 100.0})), {{0, 4}, {2, 0}});
}

TEST(ImportDxf, a_light_polyline_with_bulges) {
    // A slot: two straight sides, two half circles; the last bulge leads back to the start.
    const DxfPairs slot = {{0, "LWPOLYLINE"}, {90, "99"}, {70, "1"}, {10, "0"}, {20, "0"},
                           {10, "4"},         {20, "0"},  {42, "1"}, {10, "4"}, {20, "2"},
                           {10, "0"},         {20, "2"},  {42, "1"}};
    expect_near(only(read(slot, {.tolerance = 100.0})),
                {{-1, 1}, {0, 0}, {4, 0}, {5, 1}, {4, 2}, {0, 2}});
    DxfPairs open = slot;
    open[2].second = "0";
    expect_near(only(read(open, {.tolerance = 100.0})), {{0, 0}, {4, 0}, {5, 1}, {4, 2}, {0, 2}});
}

TEST(ImportDxf, a_heavy_polyline_up_to_its_end) {
    const auto vertex = [](const std::string& x, const std::string& y, const std::string& flags) {
        return DxfPairs{{0, "VERTEX"}, {10, x}, {20, y}, {70, flags}};
    };
    const DxfPairs polyline = DxfPairs{{0, "POLYLINE"}, {66, "1"}, {70, "5"}} +
                              vertex("0", "0", "8") + vertex("50", "50", "16") +
                              vertex("10", "0", "8") + vertex("10", "10", "1") +
                              DxfPairs{{0, "SEQEND"}};
    const Imported imported = read(polyline + dxf_line("20", "0", "30", "0"));
    ASSERT_EQ(imported.chains.size(), 2U);
    EXPECT_EQ(imported.chains[0].points, (Points{{0, 0}, {10, 0}, {10, 10}}));
    EXPECT_TRUE(imported.chains[0].closed);
    const DxfPairs mesh = DxfPairs{{0, "POLYLINE"}, {70, "16"}} + vertex("0", "0", "64") +
                          vertex("1", "0", "64") + DxfPairs{{0, "SEQEND"}};
    EXPECT_TRUE(read(mesh).chains.empty());
    EXPECT_EQ(times(read(mesh), Fact::left_out_entities), 1U);
}

DxfPairs spline(const std::vector<std::string>& knots, const Points& points,
                const std::vector<std::string>& weights) {
    DxfPairs pairs = {{0, "SPLINE"}, {70, "8"}, {71, "2"}};
    for (const std::string& knot : knots)
        pairs.emplace_back(40, knot);
    for (const Point& point : points)
        pairs = pairs + DxfPairs{{10, std::to_string(point.X)}, {20, std::to_string(point.Y)}};
    for (const std::string& weight : weights)
        pairs.emplace_back(41, weight);
    return pairs;
}

TEST(ImportDxf, splines_with_knots_and_weights) {
    const Points control = {{1, 0}, {1, 1}, {0, 1}};
    const std::vector<std::string> knots = {"0", "0", "0", "1", "1", "1"};
    const Points circle = only(read(spline(knots, control, {"1", "0.7071067811865476", "1"})));
    ASSERT_GT(circle.size(), 8U);
    for (const Point& point : circle)
        EXPECT_NEAR(length(point), 1, 1e-12);
    const Points parabola = only(read(spline(knots, control, {})));
    for (const Point& point : parabola)
        EXPECT_NEAR(std::sqrt(1 - point.X) + std::sqrt(1 - point.Y), 1, 1e-7);
    const Imported bad = read(spline({"0", "1"}, control, {}));
    EXPECT_TRUE(said(bad, Fact::bad_entity, 5));
}

TEST(ImportDxf, a_spline_of_fit_points_goes_through_them) {
    const DxfPairs pairs = {{0, "SPLINE"}, {70, "8"}, {71, "3"}, {11, "0"}, {21, "0"},
                            {11, "5"},     {21, "5"}, {11, "9"}, {21, "0"}};
    const Points points = only(read(pairs));
    EXPECT_EQ(points.front(), (Point{0, 0}));
    EXPECT_EQ(points.back(), (Point{9, 0}));
    EXPECT_EQ(std::ranges::count(points, Point{5, 5}), 1);
    EXPECT_GT(points.size(), 20U);
}

TEST(ImportDxf, what_is_drawn_from_below_is_mirrored) {
    const DxfPairs below = {{210, "0"}, {220, "0"}, {230, "-1"}};
    expect_near(
        only(read(DxfPairs{{0, "ARC"}, {10, "-1"}, {20, "2"}, {40, "5"}, {50, "0"}, {51, "90"}} +
                      below,
                  {.tolerance = 100.0})),
        {{-4, 2}, {1, 7}});
    // Lines stand in the drawing's own coordinates whatever their normal is.
    expect_near(only(read(dxf_line("1", "2", "3", "4") + below)), {{1, 2}, {3, 4}});
    const DxfPairs polyline = {{0, "LWPOLYLINE"}, {10, "0"}, {20, "0"},
                               {42, "1"},         {10, "2"}, {20, "0"}};
    expect_near(only(read(polyline + below, {.tolerance = 100.0})), {{-2, 0}, {-1, -1}, {0, 0}});
}

DxfPairs with_block(const DxfPairs& content, const DxfPairs& entities) {
    return DxfPairs{{0, "SECTION"}, {2, "BLOCKS"}} +
           DxfPairs{{0, "BLOCK"}, {2, "PART"}, {10, "1"}, {20, "1"}} + content +
           DxfPairs{{0, "ENDBLK"}, {0, "ENDSEC"}} + drawing(entities);
}

TEST(ImportDxf, blocks_are_put_in_scaled_turned_and_in_rows) {
    const DxfPairs stroke = dxf_line("1", "1", "3", "2");
    const DxfPairs insert = {{0, "INSERT"}, {2, "PART"}, {10, "100"}, {20, "50"},
                             {41, "2"},     {42, "3"},   {50, "90"}};
    // (2, 1) from the base, scaled to (4, 3), turned to (-3, 4).
    expect_near(only(import_bytes(as_text(with_block(stroke, insert)), "")), {{97, 54}, {100, 50}});
    const Imported rows =
        import_bytes(as_text(with_block(
                         stroke, insert + DxfPairs{{70, "2"}, {71, "3"}, {44, "20"}, {45, "30"}})),
                     "");
    ASSERT_EQ(rows.chains.size(), 6U);
    // One column and two rows further: (20, 60) turned to (-60, 20).
    EXPECT_TRUE(std::ranges::any_of(rows.chains, [](const Chain& chain) {
        return distance(chain.points.back(), {40, 70}) < 1e-9;
    }));
    EXPECT_TRUE(import_bytes(as_text(with_block(stroke, {})), "").chains.empty());
}

TEST(ImportDxf, an_arc_in_a_stretched_block_is_a_part_of_an_ellipse) {
    const DxfPairs circle = {{0, "CIRCLE"}, {10, "1"}, {20, "1"}, {40, "1"}};
    const DxfPairs insert = {{0, "INSERT"}, {2, "PART"}, {41, "10"}, {42, "-5"}};
    const Points points = only(import_bytes(as_text(with_block(circle, insert)), ""));
    ASSERT_GT(points.size(), 20U);
    for (const Point& point : points)
        EXPECT_NEAR(std::hypot(point.X / 10, point.Y / 5), 1, 1e-12);
}

TEST(ImportDxf, a_block_in_itself_ends_with_a_word) {
    const DxfPairs itself = dxf_line("1", "1", "2", "1") + DxfPairs{{0, "INSERT"}, {2, "PART"}};
    const Imported imported =
        import_bytes(as_text(with_block(itself, {{0, "INSERT"}, {2, "PART"}})), "");
    EXPECT_EQ(imported.chains.size(), 1U);
    EXPECT_EQ(times(imported, Fact::block_in_itself), 1U);
    EXPECT_EQ(times(read({{0, "INSERT"}, {2, "NONE"}}), Fact::missing_block), 1U);
}

TEST(ImportDxf, layers_that_are_off_or_frozen_are_left_out_and_named) {
    const auto layer = [](const std::string& name, const std::string& colour,
                          const std::string& flags) {
        return DxfPairs{{0, "LAYER"}, {2, name}, {62, colour}, {70, flags}};
    };
    const auto on_layer = [](const std::string& name, const std::string& x) {
        return DxfPairs{{0, "LINE"}, {8, name}, {10, x}, {20, "0"}, {11, x}, {21, "5"}};
    };
    const DxfPairs pairs =
        DxfPairs{{0, "SECTION"}, {2, "TABLES"}} + layer("OFF", "-7", "0") +
        layer("COLD", "7", "1") + layer("ON", "7", "0") + DxfPairs{{0, "ENDSEC"}} +
        drawing(on_layer("OFF", "1") + on_layer("COLD", "2") + on_layer("ON", "3"));
    const Imported imported = import_bytes(as_text(pairs), "");
    ASSERT_EQ(imported.chains.size(), 1U);
    EXPECT_EQ(imported.chains[0].name, "ON");
    EXPECT_EQ(times(imported, Fact::hidden_layer), 2U);
    EXPECT_EQ(import_bytes(as_text(pairs), "", {.hidden_layers = true}).chains.size(), 3U);
}

TEST(ImportDxf, paper_and_invisible_entities_are_left_out) {
    const Imported imported = read(dxf_line("0", "0", "5", "5") + dxf_line("1", "0", "9", "9") +
                                   DxfPairs{{67, "1"}} + dxf_line("2", "0", "9", "9") +
                                   DxfPairs{{60, "1"}} + DxfPairs{{0, "TEXT"}, {1, "word"}});
    EXPECT_EQ(imported.chains.size(), 1U);
    EXPECT_EQ(number_said(imported, Fact::paper_space), 1);
    EXPECT_EQ(number_said(imported, Fact::hidden_entities), 1);
    EXPECT_EQ(times(imported, Fact::left_out_entities), 1U);
}

TEST(ImportDxf, the_unit_scales_to_millimetres) {
    const auto in_unit = [](const DxfPairs& variables, const Choices& choices = {}) {
        return import_bytes(as_text(DxfPairs{{0, "SECTION"}, {2, "HEADER"}} + variables +
                                    DxfPairs{{0, "ENDSEC"}} + drawing(square)),
                            "", choices);
    };
    EXPECT_EQ(only(in_unit({{9, "$INSUNITS"}, {70, "1"}}))[1], (Point{254, 0}));
    EXPECT_EQ(only(in_unit({{9, "$INSUNITS"}, {70, "4"}}))[1], (Point{10, 0}));
    EXPECT_EQ(only(in_unit({{9, "$INSUNITS"}, {70, "0"}, {9, "$MEASUREMENT"}, {70, "0"}}))[1],
              (Point{254, 0}));
    EXPECT_EQ(only(in_unit({{9, "$INSUNITS"}, {70, "6"}, {9, "$MEASUREMENT"}, {70, "0"}}))[1],
              (Point{10'000, 0}));
    const Imported none = in_unit({{9, "$ACADVER"}, {1, "AC1009"}});
    EXPECT_TRUE(asked(none, Question::unit));
    EXPECT_EQ(none.unit_mm, 0);
    EXPECT_EQ(only(in_unit({{9, "$INSUNITS"}, {70, "1"}}, {.unit_mm = 10.0}))[1], (Point{100, 0}));
}

TEST(ImportDxf, single_points_alone_are_joined_in_their_order) {
    const auto point = [](const std::string& x, const std::string& y) {
        return DxfPairs{{0, "POINT"}, {10, x}, {20, y}};
    };
    const DxfPairs points = point("1", "0") + point("0", "5") + point("3", "3");
    EXPECT_EQ(only(read(points)), (Points{{1, 0}, {0, 5}, {3, 3}}));
    const Imported beside = read(points + square);
    EXPECT_EQ(only(beside), corners);
    EXPECT_EQ(number_said(beside, Fact::points_left_out), 3);
}

TEST(ImportDxf, areas_are_drawn_only_where_they_are_alone) {
    const DxfPairs solid = {{0, "SOLID"}, {10, "0"}, {20, "0"}, {11, "4"}, {21, "0"},
                            {12, "0"},    {22, "3"}, {13, "4"}, {23, "3"}};
    EXPECT_EQ(only(read(solid)), (Points{{0, 0}, {4, 0}, {4, 3}, {0, 3}}));
    EXPECT_EQ(only(read(solid + square)), corners);
}

TEST(ImportDxf, damage_is_told_with_its_line_and_the_rest_is_read) {
    std::string text = as_text(drawing(square));
    const Imported stray =
        import_bytes(text.insert(text.find("0\nLINE", 40), "what is this\n"), "");
    EXPECT_EQ(only(stray), corners);
    EXPECT_EQ(times(stray, Fact::stray_line), 1U);
    const Imported cut = import_bytes(as_text(square), "");
    EXPECT_EQ(only(cut), corners);
    EXPECT_EQ(times(cut, Fact::ends_early), 1U);
    const Imported trash = import_bytes(as_text(drawing(square)) + "more\n", "");
    EXPECT_TRUE(said(trash, Fact::behind_the_end, 57));
    const Imported bad = read(square + DxfPairs{{0, "LINE"}, {10, "x"}, {20, "1"}});
    EXPECT_EQ(only(bad), corners);
    EXPECT_EQ(times(bad, Fact::bad_entity), 1U);
    EXPECT_TRUE(import_bytes("AC1015 binary", "x.dwg").chains.empty());
}

} // namespace
} // namespace velmora::imports
