// Whether to begin with the reading of a file.
#pragma once

#include <string>

namespace velmora {

/// False where a box said that this is no file, or where the user did not want to read one that is
/// larger than any outline. A file that is missing is the reader's business.
[[nodiscard]] bool may_be_read(const std::string& path);

} // namespace velmora
