// The two sections of a SLWMD file, read from file 1 into an outline of the caller's choice.
#pragma once

#include "document/forma.h"
#include "formats/coordinate_limit.h"
#include "formats/reader_support.h"

#include <functional>

namespace velmora {

/// From line 3 to the line "Sincronismo". Line 3 is tried as a point too; once it was read the
/// outline is emptied. A file without that line raises 62. False when the limit stopped the read.
[[nodiscard]] bool read_slwmd_outline(Array<Pto>& points, ReadCounts& counts,
                                      CoordinateLimit& limit);

/// The lines behind "Sincronismo" to the end of the file, the first of them ignored. Each point
/// goes to `place` as it stands in the file, not divided by EscalaCarga, on purpose.
void read_slwmd_sync_points(ReadCounts& counts, const std::function<void(double, double)>& place);

} // namespace velmora
