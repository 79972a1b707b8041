// The readers of fixed records: SLWS and SLWSINC. Each Carga routine fills Forma.Pto from a file
// and returns -1 on success, 0 on failure, with its own error box and "Cancel Load?" question.
#pragma once

#include "document/forma.h"
#include "formats/reader_support.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace velmora {

std::int16_t CargaSLWS(std::string_view path);
std::int16_t CargaSLWSINC(std::string_view path);

// The two sections of a SLWSINC file, read from file 1 into an outline of the caller's choice.

/// From record 3 to the section's title. Once record 3 was read the outline is emptied; `total_box`
/// shows the points as they come. Nothing but the title ends the outline: without it a field that
/// is not a number does, with 13. The array grows before a point's texts are converted.
void read_slwsinc_outline(Array<Pto>& points, std::string& total_box, ReadCounts& counts);

/// The records after the title to the end of the file, the first of them ignored: each marks all
/// points at its place. `total_box` shows how many were marked; it keeps its figure when none was.
/// Raises 13, 6.
void match_slwsinc_sync_points(Array<Pto>& points, std::string& total_box, ReadCounts& counts);

} // namespace velmora
