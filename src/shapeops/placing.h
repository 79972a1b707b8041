// Moves of the whole shape by its selected point.
#pragma once

#include "document/forma.h"

namespace velmora {

/// Rotates the shape about `pivot` by `angle` degrees, counter-clockwise. A point exactly above or
/// below the pivot counts as lying at angle 0, on purpose. No error route: raises 6 where a
/// coordinate leaves f64.
void rotate_about(const Pto& pivot, double angle);

/// Translates the shape so that `origin` lands on (0, 0); not rounded. Raises 6 as above.
void translate_to_origin(const Pto& origin);

} // namespace velmora
