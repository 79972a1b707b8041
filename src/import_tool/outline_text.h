// An outline as the bytes of a file in one of the program's forms.
#pragma once

#include "import/imported.h"
#include "import_tool/arguments.h"

#include <string>
#include <string_view>

namespace velmora::import_tool {

/// Coordinates to five decimals, the first point once more at the end, as the program saves. In the
/// sync form the first point is the sync point. `name` becomes the description. Works through
/// Forma, which holds the outline afterwards.
[[nodiscard]] std::string outline_text(const imports::Chain& chain, Form form,
                                       std::string_view name);

/// ".dat" or ".scr".
[[nodiscard]] std::string_view ending_of(Form form);

} // namespace velmora::import_tool
