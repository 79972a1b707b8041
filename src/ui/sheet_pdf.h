// The sheets of a template as a PDF in true size.
#pragma once

#include "cutting/template_sheets.h"

#include <string>

namespace velmora {

/// The bytes of a PDF with a page a sheet; empty where there are no sheets.
[[nodiscard]] std::string pdf_of(const cutting::SheetLayout& layout);

} // namespace velmora
