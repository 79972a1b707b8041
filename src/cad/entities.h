// The entity list as a whole: what is used, what is left, and how one entity is turned round. All
// work on state::cad.ObjsCad.
#pragma once

#include "document/flag.h"
#include "document/forma.h"
#include "document/obj_cad.h"
#include "document/state/cad.h"

#include <cstdint>
#include <string_view>

namespace velmora {

/// The class of a drawing's name for it, "AcDbLine"; `none` for a class that is not read.
[[nodiscard]] TipoCad tipo_of(std::string_view class_name);

/// Number of elements with Usado 0.
[[nodiscard]] std::int32_t ContarNoUsados();
/// 0 when some element is an AcDbPoint, -1 when none is: the reverse of the name's usual sense, on
/// purpose.
[[nodiscard]] Flag HayPuntos();
/// Usado from Orden: 0 for what has a place in the chain, -1 for what has none.
void IniciaUsados();

/// The entity's last point. Raises 9 while its points have no dimensions.
[[nodiscard]] const Pto& last_point(const ObjCad& object);
/// Turns the entity's points round. Where NPtos mod 4 is 3 the two middle points keep their drawn
/// order, on purpose.
void reverse_points(ObjCad& object);

/// Both points lie in the same cell of whole units. No tolerance: 10.1 and 10.9 touch, 10.9 and
/// 11.1 do not.
[[nodiscard]] bool touches(const Pto& point, double X, double Y);

} // namespace velmora
