// The adjustment: two outlines with the same number of sync points become two with the same number
// of points, point i of one cut together with point i of the other.
#pragma once

#include "cutprep/runs.h"

#include <cstdint>
#include <functional>

namespace velmora {

/// Writes the interpolated point for a row of the other side into element `destino` of Ptos2.
/// `indice` is the own point last passed, `tramo` the run, from 1, `NumSinc` the number of runs.
/// All rows of the other side in one gap give the same point, on purpose. Raises 9, 6.
void InsertaPtoTramo(AdjustedSide& side, std::int32_t destino, std::int32_t indice,
                     std::int32_t tramo, std::int32_t NumSinc);

/// Called with the run that begins, from 1.
using RunTold = std::function<void(std::int32_t tramo)>;

/// Adds `NumSinc` runs of PtosA and PtosB to PtosA2 and PtosB2, and shows their totals as they
/// grow. Raises 9 for a side with fewer sync points, 11 or 6 where the lengths of a run can't be
/// divided, the database's faults; the runs made before stay then.
void adjust_sides(std::int32_t NumSinc, const RunTold& tell);

} // namespace velmora
