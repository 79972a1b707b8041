// Where the pointer is, in the units of the shape.
#pragma once

#include "document/windows/velmora.h"

#include <string>

namespace velmora {

/// "X 12.5  Y -3" for a pixel of pic, with as many decimals as the zoom tells apart; empty without
/// a picture.
[[nodiscard]] std::string position_text(Spot pixel);

} // namespace velmora
