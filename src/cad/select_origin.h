// The point where the cut begins, picked in the CAD.
#pragma once

#include "document/flag.h"

namespace velmora {

/// Waits for a point that the user picks in the CAD and makes it the chain's origin. -1 when one
/// was picked; else after message 31, 41 or 30. Two of the CAD's errors ask again, without limit.
/// SelOrigenActivo stays set after a wrong point, on purpose.
[[nodiscard]] Flag SelOrigen();

} // namespace velmora
