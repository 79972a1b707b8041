// What a former session left.
#pragma once

#include <string>

namespace velmora {

/// Opens a recovery file as any outline; it does not come into the list of recent files.
void open_recovered(const std::string& path);

} // namespace velmora
