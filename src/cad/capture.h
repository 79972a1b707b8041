// The outline out of the open drawing of a running CAD.
#pragma once

#include "document/flag.h"

namespace velmora {

/// Reads the model space into the outline and reports what did not fit. With `origenDelDibujo` the
/// origin comes from the first entity that is not a spline, which clears it. Has no error route:
/// what the CAD raises goes through, 91 without a document.
void CapturaAcad(Flag& origenDelDibujo);

} // namespace velmora
