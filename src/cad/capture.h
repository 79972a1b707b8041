// The outline out of the open drawing of a running CAD.
#pragma once

#include "document/flag.h"

namespace velmora {

/// Waits for a point that the user picks in the CAD and makes it the chain's origin. -1 when one
/// was picked; else after message 31, 41 or 30. Two of the CAD's errors ask again without an end.
/// SelOrigenActivo stays set after a wrong point, on purpose.
[[nodiscard]] Flag SelOrigen();

/// Reads the model space into the outline and reports what did not fit. With `origenDelDibujo` the
/// origin comes from the first entity that is no spline, which clears it. Has no error route: what
/// the CAD raises goes through, 91 without a document.
void CapturaAcad(Flag& origenDelDibujo);

} // namespace velmora
