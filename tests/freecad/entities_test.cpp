// What each kind of FreeCAD's objects is in the model space.
#include "free_cad_session.h"
#include "support/error_number.h"

#include <gmock/gmock.h>
#include <sstream>

namespace velmora {
namespace {

using Lines = std::vector<std::string>;

constexpr auto kRefused = "refused";

std::string text_of(const std::vector<double>& numbers) {
    std::ostringstream text;
    text.precision(5);
    for (const double number : numbers)
        text << ' ' << (std::abs(number) < 1e-9 ? 0 : number);
    return text.str();
}

std::string text_of(AcadEntity& entity) {
    const std::string kind = entity.ObjectName();
    if (kind == "AcDbLine")
        return kind + text_of(entity.StartPoint()) + text_of(entity.EndPoint());
    if (kind == "AcDbPoint")
        return kind + text_of(entity.Coordinates());
    if (kind == "AcDbPolyline")
        return kind + (entity.Closed() ? " closed" : " open") + text_of(entity.Coordinates());
    if (kind == "AcDbCircle")
        return kind + text_of(entity.Center()) + text_of({entity.Radius()});
    if (kind == "AcDbArc")
        return kind + text_of(entity.Center()) +
               text_of({entity.Radius(), entity.StartAngle(), entity.EndAngle()});
    if (kind != "AcDbSpline")
        return kind;
    std::string text = kind;
    for (std::int32_t i = 0; i < entity.NumberOfControlPoints(); ++i)
        text += text_of(entity.GetControlPoint(i));
    return text;
}

struct KindCase {
    const char* name;
    const char* made; ///< in Python
    Lines entities;
};
struct FreeCadKindTest : test::FreeCadSession, testing::WithParamInterface<KindCase> {};

TEST_P(FreeCadKindTest, is_an_entity_of_its_class) {
    look("FreeCAD.newDocument('clases').Name");
    open(QString("drawn(%1)").arg(GetParam().made));
    AcadDocument& drawing = *acad().AcadDoc;
    Lines entities;
    std::int32_t count = 0;
    if (test::number_of([&] { count = drawing.Count(); }) == error::drawing_refused)
        entities.emplace_back(kRefused);
    for (std::int32_t i = 0; i < count; ++i) {
        const auto entity = drawing.Item(i);
        entities.push_back(text_of(*entity));
        // Whatever it is, it can be painted.
        entity->set_Color(2);
    }
    EXPECT_EQ(entities, GetParam().entities);
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, FreeCadKindTest,
    testing::Values(
        KindCase{
            "line_in_space", "Draft.make_line(V(0, 0, 5), V(1, 2, 7))", {"AcDbLine 0 5 2.2361 7"}},
        KindCase{"point", "Draft.make_point(1, 2, 3)", {"AcDbPoint 1 2"}},
        KindCase{"filled_rectangle",
                 "Draft.make_rectangle(4, 3, turned(1, 1, V(0, 0, 1), 90))",
                 {"AcDbPolyline closed 1 1 1 5 -2 5 -2 1"}},
        KindCase{"open_wire",
                 "Draft.make_wire([V(0, 0), V(4, 0), V(4, 4)], face=False)",
                 {"AcDbPolyline open 0 0 4 0 4 4"}},
        KindCase{"circle", "Draft.make_circle(3)", {"AcDbCircle 0 0 3"}},
        KindCase{"arc",
                 "Draft.make_circle(3, startangle=30, endangle=90)",
                 {"AcDbArc 0 0 3 0.5236 1.5708"}},
        KindCase{"arc_over_east",
                 "Draft.make_circle(3, startangle=350, endangle=10)",
                 {"AcDbArc 0 0 3 6.1087 0.17453"}},
        KindCase{"arc_from_below",
                 "Draft.make_circle(3, turned(1, 2, V(1, 0, 0), 180), startangle=30, endangle=90)",
                 {"AcDbArc 1 2 3 4.7124 5.7596"}},
        KindCase{"reversed_arc",
                 "feature(Part.makeCircle(2, V(0, 0), V(0, 0, 1), 30, 90).reversed())",
                 {"AcDbArc 0 0 2 0.5236 1.5708"}},
        KindCase{"tilted_circle",
                 "Draft.make_circle(3, turned(0, 0, V(1, 0, 0), 30), face=False)",
                 {"AcDbCircle 0 0 3"}},
        KindCase{"spline_without_a_bend",
                 "Draft.make_bezcurve([V(0, 0), V(1, 0), V(2, 0)])",
                 {"AcDbPolyline open 0 0 1 0 2 0"}},
        KindCase{"wire_of_line_and_arc",
                 "feature(Part.Wire([Part.makeLine(V(2, 0), V(0, 0)),"
                 "                   Part.makeCircle(1, V(1, 0), V(0, 0, 1), 0, 180)]))",
                 {"AcDbLine 2 0 0 0", "AcDbArc 1 0 1 0 3.1416"}},
        KindCase{"sketch_by_its_edges",
                 "sketch(Part.LineSegment(V(0, 0), V(1, 0)), Part.LineSegment(V(1, 0), V(1, 1)),"
                 "       Part.Circle(V(0, 0), V(0, 0, 1), 2), at=V(10, 0))",
                 {"AcDbLine 10 0 11 0", "AcDbLine 11 0 11 1", "AcDbCircle 10 0 2"}},
        KindCase{"compound",
                 "feature(Part.Compound([Part.makeLine(V(0, 0), V(1, 0)), Part.Vertex(1, 2, 0),"
                 "                       Part.makePolygon([V(0, 0), V(1, 0), V(1, 1)])]))",
                 {"AcDbLine 0 0 1 0", "AcDbPoint 1 2", "AcDbPolyline open 0 0 1 0 1 1"}},
        KindCase{"solid", "feature(Part.makeBox(1, 1, 1))", {kRefused}},
        KindCase{"text", "Draft.make_text(['a'], V(0, 0))", {kRefused}},
        KindCase{"in_a_part",
                 "in_part(Draft.make_line(V(0, 0), V(1, 0)), at=V(100, 5))",
                 {"AcDbLine 100 5 101 5"}},
        KindCase{"in_a_hidden_part",
                 "in_part(Draft.make_line(V(0, 0), V(1, 0)), visible=False)",
                 {kRefused}},
        KindCase{"in_a_group", "in_group(Draft.make_line(V(0, 0), V(1, 0)))", {"AcDbLine 0 0 1 0"}},
        KindCase{
            "link",
            "link_to(sketch(Part.LineSegment(V(0, 0), V(1, 0)),"
            "               Part.LineSegment(V(5, 0), V(5, 1))), at=V(0, 50))",
            {"AcDbLine 0 0 1 0", "AcDbLine 5 0 5 1", "AcDbLine 0 50 1 50", "AcDbLine 5 50 5 51"}}),
    [](const auto& instance) { return instance.param.name; });

} // namespace
} // namespace velmora
