// The outline is kept when a run-time error, a signal or the machine ends the program.
#pragma once

#include "document/forma.h"

#include <string>

namespace velmora {

/// An outline apart from the session, so that it can be written while the session goes on.
struct KeptOutline {
    Array<Pto> points;
    std::string description;
};

[[nodiscard]] KeptOutline present_outline();
/// Writes it as a sync DAT over what stands at the path: whole or not at all. Raises the file's
/// errors. May run beside the program's own thread.
void write_kept(const KeptOutline& outline, const std::string& path);
/// Gives a file that a session left the name of a recovery file in its folder; the new path.
[[nodiscard]] std::string take_over(const std::string& left);

/// Writes the outline as a sync DAT to "recuperado.dat" in the program's folder; where that takes
/// no file, in the folder of the shape's own file, in the one opened last, or in the system's
/// folder for passing files. An older one is kept under the next free number, "recuperado1.dat".
/// Returns the path; empty when there is no shape or nothing can be written. Never raises.
std::string save_recovery() noexcept;

/// Says in the program's language that the shape is kept, and where.
[[nodiscard]] std::string kept_shape_text(const std::string& path);

} // namespace velmora
