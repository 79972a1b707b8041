#include "cutting/template_sheets.h"

#include "cutting/outlines.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <string>

namespace velmora::cutting {
namespace {

using Points = std::vector<Point>;

/// What is shown of a sheet is 100 by 80, and the next one begins 90 by 70 further on.
const Paper small = {.width = 120, .height = 100, .margin = 10, .overlap = 10};

std::vector<SheetLine> lines_of(const Sheet& sheet, Ink ink) {
    std::vector<SheetLine> found;
    for (const SheetLine& line : sheet.lines)
        if (line.ink == ink)
            found.push_back(line);
    return found;
}

TEST(TemplateSheets, what_fits_is_one_sheet_in_its_true_size) {
    const SidePath A = path_of({{5, 7}, {105, 7}, {105, 87}, {5, 87}});
    const SheetLayout layout = template_of(A, {}, {.paper = small});
    EXPECT_EQ(layout.fault, SheetFault::none);
    EXPECT_EQ(layout.width, 120);
    EXPECT_EQ(layout.height, 100);
    ASSERT_EQ(layout.sheets.size(), 1U);
    // Upwards in the shape is towards the upper edge of the paper.
    ASSERT_EQ(layout.sheets[0].lines.size(), 1U);
    const SheetLine& line = layout.sheets[0].lines[0];
    EXPECT_TRUE(line.closed);
    EXPECT_EQ(line.points, (Points{{10, 90}, {110, 90}, {110, 10}, {10, 10}}));
    EXPECT_TRUE(layout.sheets[0].texts.empty());
}

TEST(TemplateSheets, a_line_over_two_sheets_is_cut_at_what_each_shows) {
    // 145 wide: sheets show 0 to 100 and 90 to 190.
    const SidePath A = path_of({{0, 0}, {145, 0}});
    const SheetLayout layout = template_of(A, {}, {.paper = small, .closed = false});
    EXPECT_EQ(layout.columns, 2U);
    EXPECT_EQ(layout.rows, 1U);
    ASSERT_EQ(layout.sheets.size(), 2U);
    EXPECT_EQ(lines_of(layout.sheets[0], Ink::side_A).at(0).points, (Points{{10, 10}, {110, 10}}));
    EXPECT_EQ(lines_of(layout.sheets[1], Ink::side_A).at(0).points, (Points{{10, 10}, {65, 10}}));
    EXPECT_EQ(layout.sheets[1].column, 1U);
}

TEST(TemplateSheets, joining_marks_lie_at_one_place_of_the_shape_on_all_their_sheets) {
    const SidePath A = path_of({{0, 0}, {145, 0}, {145, 145}, {0, 145}});
    const SheetLayout layout = template_of(A, {}, {.paper = small});
    ASSERT_EQ(layout.sheets.size(), 4U);
    // The middle of the cross in the lower right corner of A1, and so on round: 95, 75 on the
    // paper.
    const std::vector<Point> corners = {{105, 85}, {15, 85}, {105, 15}, {15, 15}};
    for (std::size_t i = 0; i < 4; ++i) {
        const auto crosses = lines_of(layout.sheets[i], Ink::joint);
        EXPECT_EQ(crosses.size(), 8U);
        const bool found = std::ranges::any_of(crosses, [&](const SheetLine& line) {
            return 0.5 * (line.points[0] + line.points[1]) == corners[i];
        });
        EXPECT_TRUE(found) << i;
    }
    std::vector<std::string> names;
    for (const SheetText& text : layout.sheets[0].texts)
        names.push_back(text.text);
    EXPECT_EQ(names, (std::vector<std::string>{"A1", "A2", "B1"}));
    EXPECT_EQ(layout.sheets[3].texts[0].text, "B2");
}

TEST(TemplateSheets, sheets_without_anything_are_left_out) {
    // A frame of lines round an empty middle: 280 by 220 are 3 by 3 sheets.
    const SidePath A = path_of({{0, 0}, {280, 0}, {280, 220}, {0, 220}});
    const SheetLayout layout = template_of(A, {}, {.paper = small});
    EXPECT_EQ(layout.columns, 3U);
    EXPECT_EQ(layout.rows, 3U);
    EXPECT_EQ(layout.sheets.size(), 8U);
    EXPECT_TRUE(std::ranges::none_of(
        layout.sheets, [](const Sheet& sheet) { return sheet.column == 1 && sheet.row == 1; }));
}

TEST(TemplateSheets, scale_and_both_sides_in_their_places) {
    const SidePath A = path_of({{0, 0}, {20, 0}, {20, 20}});
    const SidePath B = path_of({{10, 5}, {15, 5}, {15, 10}});
    const SheetLayout layout = template_of(A, B, {.paper = small, .scale = 0.5});
    ASSERT_EQ(layout.sheets.size(), 1U);
    EXPECT_EQ(lines_of(layout.sheets[0], Ink::side_A).at(0).points,
              (Points{{10, 20}, {20, 20}, {20, 10}}));
    EXPECT_EQ(lines_of(layout.sheets[0], Ink::side_B).at(0).points,
              (Points{{15, 17.5}, {17.5, 17.5}, {17.5, 15}}));
}

TEST(TemplateSheets, points_numbers_and_sync_points_on_request) {
    const SidePath A = path_of({{0, 0}, {20, 0}, {20, 20}, {0, 20}}, {1, 3});
    const SheetLayout bare = template_of(A, {}, {.paper = small, .sync = false});
    EXPECT_EQ(bare.sheets.at(0).lines.size(), 1U);
    EXPECT_TRUE(bare.sheets.at(0).circles.empty());
    EXPECT_TRUE(bare.sheets.at(0).texts.empty());
    const SheetLayout full =
        template_of(A, {}, {.paper = small, .points = true, .sync = true, .numbers_each = 3});
    const Sheet& sheet = full.sheets.at(0);
    EXPECT_EQ(lines_of(sheet, Ink::point).size(), 8U);
    ASSERT_EQ(sheet.circles.size(), 2U);
    EXPECT_EQ(sheet.circles[0].centre, (Point{30, 30}));
    EXPECT_EQ(sheet.circles[1].centre, (Point{10, 10}));
    std::vector<std::string> texts;
    for (const SheetText& text : sheet.texts)
        texts.push_back(text.text);
    EXPECT_EQ(texts, (std::vector<std::string>{"1", "4", "1", "2"}));
}

TEST(TemplateSheets, one_sheet_is_as_large_as_all_needs) {
    const SheetLayout layout = template_of(path_of({{0, 0}, {3000, 0}, {3000, 500}}), {},
                                           {.paper = small, .one_sheet = true});
    ASSERT_EQ(layout.sheets.size(), 1U);
    EXPECT_EQ(layout.width, 3020);
    EXPECT_EQ(layout.height, 520);
    EXPECT_EQ(layout.sheets[0].lines.at(0).points, (Points{{10, 510}, {3010, 510}, {3010, 10}}));
}

/// The way that the sheets show, each stretch counted once.
TEST(TemplateSheets, nothing_of_the_way_is_lost_between_sheets) {
    const SidePath A = drop(500, 700);
    Paper paper = small;
    paper.overlap = 0;
    const SheetLayout layout = template_of(A, {}, {.paper = paper});
    EXPECT_GT(layout.sheets.size(), 10U);
    double shown = 0;
    for (const Sheet& sheet : layout.sheets)
        for (const SheetLine& line : lines_of(sheet, Ink::side_A))
            for (std::size_t i = 1; i < line.points.size(); ++i) {
                shown += distance(line.points[i - 1], line.points[i]);
                for (const Point& point : {line.points[i - 1], line.points[i]}) {
                    EXPECT_GE(point.X, 10 - 1e-9);
                    EXPECT_LE(point.X, 110 + 1e-9);
                    EXPECT_GE(point.Y, 10 - 1e-9);
                    EXPECT_LE(point.Y, 90 + 1e-9);
                }
            }
    double way = 0;
    for (std::size_t i = 0; i < A.points.size(); ++i)
        way += distance(A.points[i], A.points[(i + 1) % A.points.size()]);
    EXPECT_NEAR(shown, way, 1e-6);
}

TEST(TemplateSheets, what_can_not_be_laid_out_is_said) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const SidePath A = path_of({{0, 0}, {20, 0}, {20, 20}});
    EXPECT_EQ(template_of({}, {}, {}).fault, SheetFault::no_points);
    for (const double scale : {0.0, -1.0, nan})
        EXPECT_EQ(template_of(A, {}, {.scale = scale}).fault, SheetFault::bad_scale);
    for (const Paper& paper :
         {Paper{20, 297, 10, 0}, Paper{210, 297, 10, 190}, Paper{nan, 297, 10, 10},
          Paper{210, 297, nan, 10}, Paper{210, 297, -1, 10}, Paper{210, 297, 10, -1},
          Paper{210, -297, 10, 10}})
        EXPECT_EQ(template_of(A, {}, {.paper = paper}).fault, SheetFault::no_room);
    const SidePath wide = path_of({{0, 0}, {1e14, 0}});
    EXPECT_EQ(template_of(wide, {}, {}).fault, SheetFault::too_many_sheets);
    EXPECT_EQ(template_of(wide, {}, {.one_sheet = true}).fault, SheetFault::none);
    EXPECT_EQ(template_of(wide, {}, {.scale = 1e9}).fault, SheetFault::beyond_numbers);
    EXPECT_EQ(template_of(path_of({{0, 0}, {nan, 0}}), {}, {}).fault, SheetFault::beyond_numbers);
    EXPECT_TRUE(template_of(wide, {}, {}).sheets.empty());
    // One point, and points that are all equal, are a place with its marks.
    EXPECT_EQ(template_of(path_of({{3, 3}}, {0, 9}), {}, {}).sheets.at(0).circles.size(), 1U);
    EXPECT_EQ(template_of(path_of({{3, 3}, {3, 3}}, {1}), {}, {}).fault, SheetFault::none);
}

TEST(TemplateSheets, a_shape_that_is_larger_by_rounding_alone_gets_no_sheet_more) {
    const SidePath A = path_of({{0, 0}, {0.1 + 0.2, 0}});
    // 0.30000000000000004 at 333.3333 times is 100 and a bit.
    EXPECT_EQ(template_of(A, {}, {.paper = small, .scale = 100 / 0.3}).columns, 1U);
    EXPECT_EQ(template_of(A, {}, {.paper = small, .scale = 190 / 0.3}).columns, 2U);
    EXPECT_EQ(template_of(A, {}, {.paper = small, .scale = 191 / 0.3}).columns, 3U);
}

} // namespace
} // namespace velmora::cutting
