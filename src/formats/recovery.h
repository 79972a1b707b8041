// The outline is kept when a run-time error ends the program.
#pragma once

#include <string>

namespace velmora {

/// Writes the outline as a sync DAT to "recuperado.dat" in the program's folder; an older one is
/// kept under the next free number, "recuperado1.dat". Returns the path; empty when there is no
/// shape or nothing can be written. Never raises.
std::string save_recovery() noexcept;

} // namespace velmora
