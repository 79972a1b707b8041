// The run of velmora-import over its files.
#pragma once

#include "import_tool/arguments.h"
#include "import_tool/json.h"

#include <functional>
#include <string_view>

namespace velmora::import_tool {

/// Reads a file and writes what is in it; never raises. An existing file is not written over.
[[nodiscard]] Outcome import_file(const std::string& file, const Arguments& arguments);

/// All files. `say` takes each one's report; `progress` is called with how many of them are done. 0
/// when all were done, else 1.
int import_files(const Arguments& arguments, const std::function<void(std::string_view)>& say,
                 const std::function<void(std::size_t)>& progress);

} // namespace velmora::import_tool
