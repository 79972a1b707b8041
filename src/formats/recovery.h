// The outline is kept when a run-time error ends the program.
#pragma once

#include <string>

namespace velmora {

/// Writes the outline as a sync DAT to "recuperado.dat" in the program's folder; where that takes
/// no file, in the folder of the shape's own file, in the one opened last, or in the system's
/// folder for passing files. An older one is kept under the next free number, "recuperado1.dat".
/// Returns the path; empty when there is no shape or nothing can be written. Never raises.
std::string save_recovery() noexcept;

/// Says in the program's language that the shape is kept, and where.
[[nodiscard]] std::string kept_shape_text(const std::string& path);

} // namespace velmora
