// The entity list between a drawing and the outline: each entity as a short run of points.
#pragma once

#include "document/forma.h"

#include <cstdint>

namespace velmora {

/// An entity's class, by the name it has in a drawing.
enum class TipoCad : std::int8_t {
    none,
    AcDbLine,
    AcDbPoint,
    AcDbSpline,
    AcDbPolyline,
    AcDbArc,
    AcDbCircle,
};

/// One entity. A fresh one is all zero and its points have no dimensions.
struct ObjCad {
    std::int32_t NPtos = 0; ///< upper index of Ptos
    Array<Pto> Ptos;        ///< in drawn direction, Sinc 0
    std::int16_t Usado = 0; ///< -1 once the chaining took it or gave it up
    std::int32_t Id = 0;    ///< running position in the source; nothing decides on it
    std::int32_t Orden = 0; ///< place in the chain from 0; -1 outside the outline
    TipoCad Tipo = TipoCad::none;
};

/// The list at rest: one empty element.
inline Array<ObjCad> empty_entity_list() {
    Array<ObjCad> list;
    list.redim(0);
    return list;
}

} // namespace velmora
