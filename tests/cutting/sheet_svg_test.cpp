#include "cutting/sheet_svg.h"

#include "cutting/outlines.h"
#include "import/import_bytes.h"
#include "import/svg.h"
#include "runtime/numbers.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <utility>

namespace velmora::cutting {
namespace {

using Points = std::vector<Point>;

TEST(SheetSvg, a_sheet_with_all_that_it_can_hold) {
    SheetLayout layout;
    layout.width = 210;
    layout.height = 297;
    Sheet sheet;
    sheet.lines.push_back(
        {.ink = Ink::side_A, .closed = true, .points = {{1, 2}, {3.00004, -0.00001}, {5, 6}}});
    sheet.lines.push_back({.ink = Ink::joint, .closed = false, .points = {{0, 0}, {1, 1}}});
    sheet.circles.push_back({.ink = Ink::sync, .centre = {7, 8}, .radius = 1.5});
    sheet.texts.push_back({.ink = Ink::sync, .at = {9, 10}, .height = 3, .text = "12"});
    EXPECT_EQ(svg_of(layout, sheet),
              "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
              "<svg xmlns=\"http://www.w3.org/2000/svg\"\n"
              "     xmlns:inkscape=\"http://www.inkscape.org/namespaces/inkscape\"\n"
              "     width=\"210mm\" height=\"297mm\" viewBox=\"0 0 210 297\">\n"
              "<g inkscape:groupmode=\"layer\" inkscape:label=\"joint\" fill=\"none\" "
              "stroke=\"#808080\" stroke-width=\"0.1\" color=\"#808080\">\n"
              "<polyline points=\"0,0 1,1\"/>\n"
              "</g>\n"
              "<g inkscape:groupmode=\"layer\" inkscape:label=\"A\" fill=\"none\" "
              "stroke=\"#c00000\" stroke-width=\"0.2\" color=\"#c00000\">\n"
              "<polygon points=\"1,2 3,0 5,6\"/>\n"
              "</g>\n"
              "<g inkscape:groupmode=\"layer\" inkscape:label=\"sync\" fill=\"none\" "
              "stroke=\"#008000\" stroke-width=\"0.2\" color=\"#008000\">\n"
              "<circle cx=\"7\" cy=\"8\" r=\"1.5\" />\n"
              "<text x=\"9\" y=\"10\" font-family=\"sans-serif\" font-size=\"3\" "
              "fill=\"currentColor\" stroke=\"none\">12</text>\n"
              "</g>\n"
              "</svg>\n");
}

/// The points of a layer as the reader of drawings has them, in millimetres of the paper.
Points read_layer(const std::string& svg, const std::string& layer, double& unit_mm) {
    imports::Report report;
    bool size_known = false;
    const imports::Drawing drawing = imports::read_svg(svg, 0.01, report, size_known);
    EXPECT_TRUE(size_known);
    unit_mm = drawing.unit_mm;
    Points points;
    for (const imports::Piece& piece : drawing.pieces.all())
        if (drawing.layers[piece.layer] == layer)
            for (const Point& point : drawing.pieces.points(piece))
                points.push_back({point.X, -point.Y});
    return points;
}

/// A reader takes no point where the line stands already.
Points rounded(const Points& points, int decimals) {
    Points all;
    for (const Point& point : points) {
        const Point at = {runtime::Round(point.X, decimals), runtime::Round(point.Y, decimals)};
        if (all.empty() || all.back() != at)
            all.push_back(at);
    }
    return all;
}

TEST(SheetSvg, what_is_written_is_read_back_to_the_last_decimal) {
    const SidePath A = drop(800, 180);
    const SidePath B = drop(300, 90);
    const SheetLayout layout =
        template_of(A, B, {.paper = {.width = 297, .height = 210}, .points = true});
    ASSERT_EQ(layout.sheets.size(), 1U);
    for (const int decimals : {2, 4, 7}) {
        const std::string svg = svg_of(layout, layout.sheets[0], decimals);
        for (const auto& [ink, layer] :
             {std::pair(Ink::side_A, "A"), std::pair(Ink::side_B, "B")}) {
            double unit_mm = 0;
            const Points read = read_layer(svg, layer, unit_mm);
            EXPECT_NEAR(unit_mm, 1, 1e-12);
            const auto line = std::ranges::find(layout.sheets[0].lines, ink, &SheetLine::ink);
            ASSERT_NE(line, layout.sheets[0].lines.end());
            EXPECT_TRUE(read == rounded(line->points, decimals)) << layer << decimals;
        }
    }
}

TEST(SheetSvg, a_template_is_an_outline_that_can_be_imported) {
    const SidePath A = path_of({{0, 0}, {100, 0}, {100, 50}, {30, 60}});
    const SheetLayout layout = template_of(A, {}, {.sync = false, .one_sheet = true});
    const imports::Imported read =
        imports::import_bytes(svg_of(layout, layout.sheets.at(0)), "template.svg");
    EXPECT_EQ(read.kind, imports::Kind::svg);
    ASSERT_EQ(read.chains.size(), 1U);
    EXPECT_TRUE(read.chains[0].closed);
    const Box box = box_of(read.chains[0].points);
    EXPECT_NEAR(box.width(), 100, 1e-9);
    EXPECT_NEAR(box.height(), 60, 1e-9);
    EXPECT_NEAR(imports::twice_area(read.chains[0].points), imports::twice_area(A.points), 1e-6);
}

} // namespace
} // namespace velmora::cutting
