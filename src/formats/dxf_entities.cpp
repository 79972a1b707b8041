#include "formats/dxf_entities.h"

#include "cad/entities.h"
#include "cad/entity_counters.h"
#include "cad/flatten.h"
#include "document/feedback.h"
#include "document/forma.h"
#include "document/state/cad.h"
#include "runtime/numbers.h"
#include "runtime/text.h"

#include <utility>

namespace velmora {

DxfEntities::Reader DxfEntities::reader_of(std::string_view line) {
    if (!line.starts_with("AcDb"))
        return nullptr;
    switch (tipo_of(line)) {
    case TipoCad::AcDbLine:
        return &DxfEntities::read_line;
    case TipoCad::AcDbPoint:
        return &DxfEntities::read_point;
    case TipoCad::AcDbCircle:
        return &DxfEntities::read_circle;
    case TipoCad::AcDbPolyline:
        return &DxfEntities::read_polyline;
    default:
        return nullptr;
    }
}

bool DxfEntities::read(Reader entity) {
    if (taken_ == 0)
        state::cad.ObjsCad.redim(0);
    return (this->*entity)();
}

bool DxfEntities::read_line() {
    Array<Pto> points;
    points.redim(1);
    for (Pto& end : points.all()) {
        end.X = text_.coordinate();
        end.Y = text_.coordinate();
        text_.skip();
        text_.skip(); // Z
    }
    const bool ended = text_.at_section_end();
    take(TipoCad::AcDbLine, std::move(points));
    return ended;
}

bool DxfEntities::read_point() {
    Pto point;
    point.X = text_.coordinate();
    point.Y = text_.coordinate();
    const bool ended = text_.at_section_end();
    Array<Pto> points;
    points.append(taken_ == 0 ? point : last_point(state::cad.ObjsCad[taken_ - 1]));
    points.append(point);
    take(TipoCad::AcDbPoint, std::move(points));
    return ended;
}

bool DxfEntities::read_circle() {
    const double centre_x = text_.measure();
    const double centre_y = text_.measure();
    text_.skip();
    text_.skip(); // Z
    const double radius = text_.measure();
    text_.skip();
    const bool is_arc = runtime::Trim(text_.line()) == "AcDbArc";
    if (!is_arc) {
        const bool ended = text_.at_section_end();
        take(TipoCad::AcDbCircle, dxf_circle(centre_x, centre_y, radius));
        return ended;
    }
    const double start = text_.angle();
    const double end = text_.angle();
    const bool ended = text_.at_section_end();
    take(TipoCad::AcDbArc, dxf_arc(centre_x, centre_y, radius, start, end));
    return ended;
}

bool DxfEntities::read_polyline() {
    const std::int32_t last_vertex = runtime::to_int32(text_.count() - 1);
    if (last_vertex < 0)
        raise(error::subscript);
    const bool closed = text_.count() == 1;
    text_.skip();
    text_.skip(); // constant width
    Array<Pto> points;
    for (std::int32_t vertex = 0; vertex <= last_vertex; ++vertex) {
        const double X = text_.coordinate();
        points.append({.X = X, .Y = text_.coordinate()});
    }
    if (closed)
        close_run(points);
    const bool ended = text_.at_section_end();
    take(TipoCad::AcDbPolyline, std::move(points));
    return ended;
}

void DxfEntities::take(TipoCad tipo, Array<Pto> points) {
    Array<ObjCad>& objects = state::cad.ObjsCad;
    objects.redim_keep(taken_);
    ObjCad& object = objects[taken_];
    object.NPtos = points.upper();
    object.Ptos = std::move(points);
    object.Id = taken_;
    object.Tipo = tipo;
    ++taken_;
    count_entity(tipo, taken_);
    DoEvents();
}

} // namespace velmora
