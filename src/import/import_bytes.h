// The one way in: the bytes of a file to chains, a report and what has to be asked.
#pragma once

#include "import/imported.h"

#include <string_view>

namespace velmora::imports {

/// Never raises but for want of memory. `name` is the file's, and counts only where the content
/// does not say what it is.
[[nodiscard]] Imported import_bytes(std::string_view bytes, std::string_view name,
                                    const Choices& choices = {});

/// Chains are there, and nothing that was asked leaves them a guess.
[[nodiscard]] bool is_settled(const Imported& imported);

} // namespace velmora::imports
