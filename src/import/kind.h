// What a file is, by its content.
#pragma once

#include "import/imported.h"

#include <string_view>
#include <vector>

namespace velmora::imports {

/// The name of a kind: "points", "dxf", "svg", "gcode".
[[nodiscard]] std::string_view kind_name(Kind kind);

struct KindGuess {
    std::vector<Kind> kinds; ///< the best first; empty for a file that is known and not read
    bool certain = false;
    std::string_view not_read; ///< what it is then
};
/// `text` are the decoded bytes; the name's ending counts where the content says nothing.
[[nodiscard]] KindGuess guess_kind(std::string_view bytes, std::string_view text,
                                   std::string_view name);

} // namespace velmora::imports
