#include "cad/entities.h"

#include "document/flag.h"
#include "document/forma.h"
#include "document/state/cad.h"
#include "runtime/numbers.h"

#include <algorithm>
#include <array>
#include <utility>

namespace velmora {

namespace {

bool is_unused(const ObjCad& object) {
    return object.Usado == 0;
}

std::span<const ObjCad> all_objects() {
    return std::as_const(state::cad.ObjsCad).all();
}

} // namespace

TipoCad tipo_of(std::string_view class_name) {
    using enum TipoCad;
    static constexpr std::array<std::pair<std::string_view, TipoCad>, 6> names{{
        {"AcDbLine", AcDbLine},
        {"AcDbPoint", AcDbPoint},
        {"AcDbSpline", AcDbSpline},
        {"AcDbPolyline", AcDbPolyline},
        {"AcDbArc", AcDbArc},
        {"AcDbCircle", AcDbCircle},
    }};
    for (const auto& [name, tipo] : names) {
        if (name == class_name)
            return tipo;
    }
    return none;
}

std::int32_t ContarNoUsados() {
    return static_cast<std::int32_t>(std::ranges::count_if(all_objects(), is_unused));
}

Flag HayPuntos() {
    return flag(std::ranges::none_of(
        all_objects(), [](const ObjCad& object) { return object.Tipo == TipoCad::AcDbPoint; }));
}

void IniciaUsados() {
    for (ObjCad& object : state::cad.ObjsCad.all())
        object.Usado = flag(object.Orden == -1);
}

const Pto& last_point(const ObjCad& object) {
    return object.Ptos[object.NPtos];
}

void reverse_points(ObjCad& object) {
    // Halves go to the even number, so that for NPtos 3, 7, 11 the loop takes one step too many and
    // swaps the middle pair back.
    const std::int32_t half = runtime::to_int32(object.NPtos / 2.0);
    for (std::int32_t j = 0; j <= half; ++j) {
        Pto& a = object.Ptos[j];
        Pto& b = object.Ptos[object.NPtos - j];
        std::swap(a.X, b.X);
        std::swap(a.Y, b.Y);
    }
}

bool touches(const Pto& point, double X, double Y) {
    return runtime::Int(point.X) == runtime::Int(X) && runtime::Int(point.Y) == runtime::Int(Y);
}

} // namespace velmora
