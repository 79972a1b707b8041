// The view as a picture file.
#pragma once

namespace velmora {

/// Asks for a name and writes what is seen of the canvas as PNG; the panel says where it went. A
/// box tells what could not be written.
void save_view();

} // namespace velmora
