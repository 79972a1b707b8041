// The view as a picture file.
#pragma once

#include <string>

namespace velmora {

/// Writes what is seen of the canvas as PNG; the panel says where it went. A box tells what could
/// not be written.
void save_view(const std::string& path);

} // namespace velmora
