// A sheet of a template as a drawing that any browser or drawing program opens in its true size.
#pragma once

#include "cutting/template_sheets.h"

#include <string>

namespace velmora::cutting {

/// The sheet as SVG, a layer an ink, places to so many decimals of a millimetre, 0 to 9.
[[nodiscard]] std::string svg_of(const SheetLayout& layout, const Sheet& sheet, int decimals = 4);

} // namespace velmora::cutting
