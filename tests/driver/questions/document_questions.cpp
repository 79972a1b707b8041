#include "document/session.h"
#include "questions/questions.h"
#include "questions/session_values.h"
#include "script/fault.h"
#include "script/numbers.h"
#include "script/words.h"

#include <algorithm>
#include <array>
#include <utility>

namespace velmora::driver {

namespace {

const Array<Pto>& points_named(std::string_view name) {
    const auto arrays = std::to_array<std::pair<std::string_view, const Array<Pto>*>>({
        {"Forma.Pto", &Forma.Pto},
        {"Forma.Paralela", &Forma.Paralela},
        {"PtosA", &session.PtosA},
        {"PtosB", &session.PtosB},
        {"PtosA2", &session.PtosA2},
        {"PtosB2", &session.PtosB2},
        {"TrabajoA", &session.TrabajoA},
        {"TrabajoB", &session.TrabajoB},
    });
    const auto found = std::ranges::find(arrays, name, [](const auto& a) { return a.first; });
    if (found == arrays.end())
        fault("no array " + word_text(name));
    return *found->second;
}

void print_points(Transcript& transcript, const Array<Pto>& points) {
    std::int32_t index = 0;
    for (const Pto& point : points.all())
        transcript.line(number_text(index++), number_text(point.X), number_text(point.Y),
                        number_text(std::int32_t{point.Sinc}),
                        number_text(std::int32_t{point.Marca}));
}

std::string_view class_name(TipoCad tipo) {
    switch (tipo) {
    case TipoCad::AcDbLine:
        return "AcDbLine";
    case TipoCad::AcDbPoint:
        return "AcDbPoint";
    case TipoCad::AcDbSpline:
        return "AcDbSpline";
    case TipoCad::AcDbPolyline:
        return "AcDbPolyline";
    case TipoCad::AcDbArc:
        return "AcDbArc";
    case TipoCad::AcDbCircle:
        return "AcDbCircle";
    case TipoCad::none:
        break;
    }
    return {};
}

} // namespace

void show_points(Transcript& transcript, std::span<const std::string> words) {
    if (words.size() > 1)
        fault("show points [ARRAY]");
    const std::string name = words.empty() ? "Forma.Pto" : words[0];
    const Array<Pto>& points = points_named(name);
    if (!points.dimensioned()) {
        transcript.line("points", name, "none");
        return;
    }
    transcript.line("points", name, number_text(points.upper() + 1));
    print_points(transcript, points);
}

void show_objects(Transcript& transcript) {
    std::int32_t index = 0;
    for (const ObjCad& object : session.ObjsCad.all()) {
        transcript.line(number_text(index++), word_text(class_name(object.Tipo)),
                        number_text(object.Id), number_text(object.Orden),
                        number_text(std::int32_t{object.Usado}), number_text(object.NPtos));
        print_points(transcript, object.Ptos);
    }
}

void show_values(Transcript& transcript, const Places& places, std::span<const std::string> words) {
    if (words.empty())
        fault("show values NAME ...");
    for (const std::string& name : words) {
        const auto value = session_value(session, name, places);
        if (!value)
            fault("no session value " + word_text(name));
        transcript.line(name, "=", *value);
    }
}

} // namespace velmora::driver
