// Programs of four-axis wire cutters: the paths of both ends of the wire.
#pragma once

#include "import/imported.h"

#include <string_view>

namespace velmora::imports {

/// One chain where X and Y alone move, else two with as many points each, which belong together in
/// pairs. In millimetres. A program with variables or expressions is refused: no chain, and a
/// remark with the line.
void read_gcode(std::string_view text, double tolerance_mm, const Choices& choices,
                Imported& imported);

} // namespace velmora::imports
