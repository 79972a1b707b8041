// The readers of free-text DAT files: SLWMD, NOSLW and PROFILI. Each Carga routine fills Forma.Pto
// from a file and returns -1 on success, 0 on failure, with its own error box; all but CargaSLWMD
// ask "Cancel Load?". Where a copy is read in the file's stead, texts show the file's own path.
#pragma once

#include "document/forma.h"
#include "formats/coordinate_limit.h"
#include "formats/reader_support.h"

#include <cstdint>
#include <functional>
#include <string_view>

namespace velmora {

std::int16_t CargaSLWMD(std::string_view path);
std::int16_t CargaSLWMD(std::string_view path, std::string_view shown_path);
std::int16_t CargaNOSLW(std::string_view path);
std::int16_t CargaNOSLW(std::string_view path, std::string_view shown_path);
std::int16_t CargaPROFILI(std::string_view path);
std::int16_t CargaPROFILI(std::string_view path, std::string_view shown_path);

// The two sections of a SLWMD file, read from file 1 into an outline of the caller's choice.

/// From line 3 to the line "Sincronismo". Line 3 is tried as a point too; once it was read the
/// outline is emptied. A file without that line raises 62. False when the limit stopped the read.
[[nodiscard]] bool read_slwmd_outline(Array<Pto>& points, ReadCounts& counts,
                                      CoordinateLimit& limit);

/// The lines after "Sincronismo" to the end of the file, the first of them ignored. Each point goes
/// to `place` as it is in the file, not divided by EscalaCarga, on purpose.
void read_slwmd_sync_points(ReadCounts& counts, const std::function<void(double, double)>& place);

} // namespace velmora
