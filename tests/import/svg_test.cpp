#include "import/svg.h"

#include "import/import_bytes.h"
#include "import/reading.h"
#include "import/svg_attributes.h"
#include "import/svg_path.h"
#include "import/xml.h"

#include <gtest/gtest.h>

#include <numbers>

namespace velmora::imports {
namespace {

using Points = std::vector<Point>;

/// In millimetres, since the box is as wide in its own units as the picture is in them.
Imported read(const std::string& content, const Choices& choices = {.tolerance = 100.0}) {
    return import_bytes("<svg xmlns='http://www.w3.org/2000/svg' width='200mm' height='100mm' "
                        "viewBox='0 0 200 100'>" +
                            content + "</svg>",
                        "", choices);
}

Points only(const Imported& imported) {
    return imported.chains.size() == 1 ? imported.chains[0].points : Points{};
}

Points path(const std::string& data) {
    return only(read("<path d='" + data + "'/>"));
}

void expect_near(const Points& points, const Points& expected) {
    ASSERT_EQ(points.size(), expected.size());
    for (std::size_t i = 0; i < points.size(); ++i)
        EXPECT_LT(distance(points[i], expected[i]), 1e-9)
            << i << ": " << points[i].X << " " << points[i].Y;
}

TEST(ImportSvg, lines_absolute_and_relative_with_Y_upwards) {
    const Points zigzag = {{1, -2}, {4, -6}, {9, -6}, {9, -1}};
    expect_near(path("M1 2L4 6H9V1"), zigzag);
    expect_near(path("m1,2 3,4h5v-5"), zigzag);
    expect_near(path("M1 2 4 6 9 6 9 1"), zigzag);
    expect_near(path(" M 1 , 2 l 3 4 5 0 L9-1e0 9 1 "),
                {{1, -2}, {4, -6}, {9, -6}, {9, 1}, {9, -1}});
}

TEST(ImportSvg, numbers_abut) {
    expect_near(path("M.5.5.75-2L3-.25"), {{0.5, -0.5}, {0.75, 2}, {3, 0.25}});
}

TEST(ImportSvg, Z_goes_back_to_the_start_of_its_run) {
    const Imported imported = read("<path d='m1 1h2v2zm10 0h1v1z'/>");
    ASSERT_EQ(imported.chains.size(), 2U);
    expect_near(imported.chains[0].points, {{1, -1}, {3, -3}, {3, -1}});
    expect_near(imported.chains[1].points, {{11, -1}, {12, -2}, {12, -1}});
    EXPECT_TRUE(imported.chains[1].closed);
}

TEST(ImportSvg, curves_end_where_they_say) {
    // A whole parabola of second degree passes (5, 5) in its middle.
    const Imported fine = read("<path d='M0 0Q5 10 10 0'/>", {.tolerance = 1e-4});
    for (const Point& point : only(fine))
        EXPECT_NEAR(point.Y, -point.X * (10 - point.X) / 5, 1e-9);
    expect_near(path("M0 0C0 1 1 1 1 0"), {{0, 0}, {1, 0}});
    expect_near(path("M0 0c0 1 1 1 1 0s1-1 1 0"), {{0, 0}, {1, 0}, {2, 0}});
}

TEST(ImportSvg, smooth_curves_reflect_only_their_own_family) {
    const auto height = [](const std::string& data) {
        const Box box = box_of(only(read("<path d='" + data + "'/>", {.tolerance = 1e-4})));
        return box.max_Y;
    };
    EXPECT_NEAR(height("M0 0Q5 10 10 0T20 0"), 5, 1e-3);
    EXPECT_NEAR(height("M0 0L10 0T20 0"), 0, 1e-12);
    EXPECT_NEAR(height("M0 0C0 4 10 4 10 0S20-4 20 0"), 3, 1e-3);
    EXPECT_NEAR(height("M0 0Q5 10 10 0S20 0 20 0"), 0, 1e-12);
}

TEST(ImportSvg, arcs_with_flags_that_abut) {
    // A half circle from (0, 0) to (2, 0), downwards on the screen with the sweep flag 0.
    for (const std::string data : {"M0 0A1 1 0 0 0 2 0", "M0 0a1 1 0 002 0", "M0,0A1,1,0,00,2,0"})
        expect_near(path(data), {{0, 0}, {1, -1}, {2, 0}});
    expect_near(path("M0 0A1 1 0 0 1 2 0"), {{0, 0}, {1, 1}, {2, 0}});
    expect_near(path("M0 0A0 1 0 0 1 2 0"), {{0, 0}, {2, 0}});
    EXPECT_TRUE(path("M0 0A1 1 0 0 1 0 0").empty());
}

TEST(ImportSvg, an_arc_keeps_its_radii_and_its_sweep) {
    for (const bool large : {false, true}) {
        for (const bool turning : {false, true}) {
            const auto arc = svg_arc({1, 2}, {4, 3}, 5, 3, 0.4, large, turning);
            ASSERT_TRUE(arc);
            EXPECT_NEAR(distance(arc->at(arc->start), {1, 2}), 0, 1e-12);
            EXPECT_NEAR(distance(arc->at(arc->start + arc->sweep), {4, 3}), 0, 1e-12);
            EXPECT_EQ(std::abs(arc->sweep) > std::numbers::pi, large);
            EXPECT_EQ(arc->sweep > 0, turning);
            EXPECT_NEAR(length(arc->major), 5, 1e-12);
        }
    }
    // Too small radii grow until they reach.
    EXPECT_NEAR(length(svg_arc({0, 0}, {8, 0}, 1, 1, 0, false, true)->major), 4, 1e-12);
}

TEST(ImportSvg, at_an_error_what_precedes_it_stays) {
    const Imported imported = read("<path d='M1 2L4 6X9 9'/>");
    expect_near(only(imported), {{1, -2}, {4, -6}});
    EXPECT_EQ(times(imported, Fact::broken_path), 1U);
    for (const std::string data : {"L1 2", "1 2", "M1", "M1 2L", "M1 2A1 1 0 2 0 5 5"})
        EXPECT_EQ(times(read("<path d='" + data + "'/>"), Fact::broken_path), 1U) << data;
    EXPECT_EQ(times(read("<path d='M1 2 3 4z'/>"), Fact::broken_path), 0U);
    EXPECT_EQ(times(read("<path d=''/>"), Fact::broken_path), 0U);
}

TEST(ImportSvg, shapes) {
    expect_near(only(read("<rect x='1' y='2' width='3' height='4'/>")),
                {{1, -6}, {4, -6}, {4, -2}, {1, -2}});
    expect_near(only(read("<circle cx='5' cy='6' r='2'/>")), {{3, -6}, {5, -8}, {7, -6}, {5, -4}});
    expect_near(only(read("<ellipse cx='5' cy='6' rx='2' ry='1'/>")),
                {{3, -6}, {5, -7}, {7, -6}, {5, -5}});
    expect_near(only(read("<line x1='1' y1='2' x2='3' y2='4'/>")), {{1, -2}, {3, -4}});
    expect_near(only(read("<polyline points='0,0 5,0 5,5 9'/>")), {{0, 0}, {5, 0}, {5, -5}});
    EXPECT_TRUE(read("<polygon points='0,0 5,0 5,5'/>").chains.at(0).closed);
    const Imported rounded = read("<rect width='10' height='6' rx='2'/>", {.tolerance = 1e-4});
    const Box box = box_of(only(rounded));
    EXPECT_NEAR(box.width(), 10, 1e-9);
    EXPECT_NEAR(box.height(), 6, 1e-9);
    EXPECT_NEAR(twice_area(only(rounded)) / 2, 60 - (4 - std::numbers::pi) * 4, 1e-3);
}

TEST(ImportSvg, transforms_are_carried_out_from_the_outer_to_the_inner) {
    expect_near(only(read("<g transform='translate(10,20)'><g transform='scale(2)'>"
                          "<path transform='rotate(90)' d='M0 0L3 1'/></g></g>")),
                {{8, -26}, {10, -20}});
    const Map map = svg_transform("translate(10 20) scale(2, 3)");
    EXPECT_EQ(map({1, 1}), (Point{12, 23}));
    EXPECT_LT(distance(svg_transform("rotate(180, 5, 5)")({0, 0}), {10, 10}), 1e-12);
    EXPECT_EQ(svg_transform("matrix(1 2 3 4 5 6)")({1, 1}), (Point{9, 12}));
    EXPECT_NEAR(svg_transform("skewX(45)")({0, 2}).X, 2, 1e-12);
    EXPECT_EQ(svg_transform("scale(2) nonsense(1) scale(9)")({1, 1}), (Point{2, 2}));
    EXPECT_EQ(svg_transform(")(")({1, 1}), (Point{1, 1}));
}

TEST(ImportSvg, units_and_view_box_give_millimetres) {
    const auto corner = [](const std::string& attributes) {
        const Imported imported =
            import_bytes("<svg " + attributes + "><path d='M0 0H96'/></svg>", "");
        return imported.chains.at(0).points.back().X;
    };
    EXPECT_NEAR(corner("width='100mm' height='50mm' viewBox='0 0 200 100'"), 48, 1e-9);
    EXPECT_NEAR(corner("width='1in' height='1in' viewBox='0 0 96 96'"), 25.4, 1e-9);
    EXPECT_NEAR(corner("width='10cm' height='10cm' viewBox='0 0 96 192'"), 50, 1e-9);
    EXPECT_NEAR(corner("width='72pt' viewBox='0 0 96 96'"), 25.4, 1e-9);
    EXPECT_NEAR(corner("width='100' height='100'"), 25.4, 1e-9);
    const Imported unsized =
        import_bytes("<svg width='100%' viewBox='0 0 9 9'><path d='M0 0H96'/></svg>", "", {});
    EXPECT_TRUE(asked(unsized, Question::unit));
    EXPECT_FALSE(asked(read("<path d='M0 0H96'/>"), Question::unit));
}

TEST(ImportSvg, what_is_hidden_or_only_defined_is_not_drawn) {
    EXPECT_TRUE(read("<defs><path d='M0 0H5'/></defs><path display='none' d='M0 0H5'/>"
                     "<g style='fill:red; display : none'><path d='M0 0H5'/></g>"
                     "<clipPath><rect width='5' height='5'/></clipPath><text>word</text>"
                     "<symbol id='s'><path d='M0 0H5'/></symbol>")
                    .chains.empty());
    EXPECT_EQ(times(read("<text>word</text>"), Fact::left_out_entities), 1U);
}

TEST(ImportSvg, uses_draw_what_they_refer_to_at_their_place) {
    const std::string defined = "<defs><g id='a'><path d='M0 0L1 2'/></g></defs>"
                                "<symbol id='s'><path d='M0 0L1 2'/></symbol>";
    expect_near(only(read(defined + "<use xlink:href='#a' x='10' y='20'/>")),
                {{10, -20}, {11, -22}});
    expect_near(only(read(defined + "<use href='#s' transform='scale(3)'/>")), {{0, 0}, {3, -6}});
    EXPECT_EQ(times(read("<use href='#none'/>"), Fact::missing_block), 1U);
    const Imported itself = read("<g id='a'><path d='M0 0L1 2'/><use href='#a' x='1'/></g>");
    EXPECT_FALSE(itself.chains.empty());
    EXPECT_GE(times(itself, Fact::too_deep), 1U);
}

TEST(ImportSvg, layers_name_their_chains) {
    EXPECT_EQ(read("<g inkscape:label='Rib'><path d='M0 0H5'/></g>").chains.at(0).name, "Rib");
}

TEST(ImportSvg, broken_files_give_what_precedes_the_break) {
    const Imported imported = import_bytes("<svg><path d='M0 0H5'/>\n<path d='M0", "");
    EXPECT_EQ(imported.chains.size(), 1U);
    EXPECT_TRUE(said(imported, Fact::broken_xml, 2));
    EXPECT_EQ(import_bytes("<svg><g><path d='M0 0H5'/>", "").chains.size(), 1U);
    EXPECT_EQ(import_bytes("<svg></g></g><path d='M0 0H5'/>", "").chains.size(), 1U);
}

TEST(ImportXml, gives_elements_and_attributes) {
    XmlReader xml(
        "<?xml version='1.0'?>\n<!DOCTYPE svg [ <!ENTITY a 'b'> ]>\n<!-- <no/> -->"
        "<a:svg x = \"1 &amp; 2&#65;&#x42;&b;\" ns:y='<'><![CDATA[<no/>]]>\n<b/></a:svg>");
    EXPECT_EQ(xml.next(), XmlReader::Event::start);
    EXPECT_EQ(xml.name(), "svg");
    EXPECT_EQ(xml.attribute("x"), "1 & 2AB&b;");
    EXPECT_EQ(xml.attribute("y"), "<");
    EXPECT_EQ(xml.line(), 3U);
    EXPECT_EQ(xml.next(), XmlReader::Event::start);
    EXPECT_EQ(xml.name(), "b");
    EXPECT_EQ(xml.attribute("x"), "");
    EXPECT_EQ(xml.line(), 4U);
    EXPECT_EQ(xml.next(), XmlReader::Event::end);
    EXPECT_EQ(xml.next(), XmlReader::Event::end);
    EXPECT_EQ(xml.next(), XmlReader::Event::finished);
}

TEST(ImportXml, ends_at_what_is_none) {
    for (const std::string_view text : {"<a", "<a b", "<a b=", "<a b='", "<a b=c>", "< a>", "<!--",
                                        "<![CDATA[", "<?", "<!DOCTYPE [", "</a"}) {
        XmlReader xml(text);
        EXPECT_EQ(xml.next(), XmlReader::Event::broken) << text;
    }
}

} // namespace
} // namespace velmora::imports
