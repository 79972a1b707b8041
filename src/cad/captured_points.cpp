#include "cad/captured_points.h"

#include "cad/entity_counters.h"
#include "cad/flatten.h"
#include "cad/spline.h"
#include "document/feedback.h"
#include "document/forma.h"
#include "document/number_text.h"
#include "document/state/options.h"
#include "document/state/program.h"
#include "document/windows/winoptions.h"
#include "runtime/numbers.h"
#include "services/message_codes.h"
#include "services/messages.h"

#include <optional>
#include <span>
#include <string>

namespace velmora {

namespace {

double element(std::span<const double> values, std::size_t index) {
    if (index >= values.size())
        raise(error::subscript);
    return values[index];
}

Pto raw_point(std::span<const double> place) {
    return {.X = element(place, 0), .Y = element(place, 1)};
}

void append_point(Array<Pto>& points, double X, double Y) {
    points.append({.X = Normaliza15(X), .Y = Normaliza15(Y)});
    step_entity_progress();
}

Array<Pto> two_points(std::span<const double> from, std::span<const double> to) {
    start_entity_progress(2);
    Array<Pto> points;
    for (const auto place : {from, to})
        append_point(points, element(place, 0), element(place, 1));
    return points;
}

Array<Pto> line_points(AcadEntity& line) {
    return two_points(line.StartPoint(), line.EndPoint());
}

Array<Pto> point_points(AcadEntity& point) {
    const std::vector<double> place = point.Coordinates();
    return two_points(place, place);
}

Array<Pto> polyline_points(AcadEntity& polyline) {
    const std::vector<double> flat = polyline.Coordinates();
    const std::int32_t vertices = runtime::to_int32(static_cast<double>(flat.size()) / 2);
    if (vertices < 1)
        raise(error::subscript);
    start_entity_progress(vertices);
    Array<Pto> points;
    for (std::size_t i = 0; i < static_cast<std::size_t>(vertices); ++i)
        append_point(points, element(flat, 2 * i), element(flat, 2 * i + 1));
    if (polyline.Closed())
        close_run(points);
    return points;
}

Array<Pto> spline_points(AcadEntity& spline) {
    std::vector<Pto> control_points;
    const std::int32_t count = spline.NumberOfControlPoints();
    for (std::int32_t i = 0; i < count; ++i)
        control_points.push_back(raw_point(spline.GetControlPoint(i)));
    return capture_spline(control_points);
}

std::optional<std::int32_t> whole_number(const std::string& text) {
    std::optional<std::int32_t> number;
    trap(
        [&] {
            const double value = CDbl(text);
            if (runtime::Int(value) == value)
                number = runtime::to_int32(value);
        },
        [](const RuntimeError&) {});
    return number;
}

/// Only a number that is large enough ends it, on purpose.
void ask_while_below(std::int32_t fewest, int prompt, std::int32_t& points, std::string& box) {
    while (points < fewest) {
        const auto given = whole_number(InputBox(GetMensaje(prompt), box_title(), ""));
        if (!given)
            continue;
        points = *given;
        box = CStr(points);
    }
}

Array<Pto> arc_points(AcadEntity& arc) {
    ask_while_below(3, message::arc_points_too_few, state::options.PutArc,
                    state::winoptions.TxtPutArc);
    const Pto centre = raw_point(arc.Center());
    const double radius = arc.Radius();
    const double start = arc.StartAngle();
    return capture_arc(centre.X, centre.Y, radius, start, arc.EndAngle());
}

Array<Pto> circle_points(AcadEntity& circle) {
    ask_while_below(4, message::circle_points_too_few, state::options.PutCircle,
                    state::winoptions.TxtPutCircle);
    const Pto centre = raw_point(circle.Center());
    return capture_circle(centre.X, centre.Y, circle.Radius());
}

} // namespace

Array<Pto> captured_points(AcadEntity& entity, TipoCad tipo) {
    switch (tipo) {
    case TipoCad::AcDbLine:
        return line_points(entity);
    case TipoCad::AcDbPoint:
        return point_points(entity);
    case TipoCad::AcDbPolyline:
        return polyline_points(entity);
    case TipoCad::AcDbSpline:
        return spline_points(entity);
    case TipoCad::AcDbArc:
        return arc_points(entity);
    case TipoCad::AcDbCircle:
        return circle_points(entity);
    case TipoCad::none:
        break;
    }
    raise(error::invalid_call);
}

} // namespace velmora
