// The adjustment: two outlines with the same number of sync points become two with the same number
// of points, point i of one cut together with point i of the other, and each pair is carried
// outward along the line through its two points.
#pragma once

#include "cutprep/runs.h"

#include <cstdint>

namespace velmora {

/// Writes the interpolated point for a row of the other side into element `destino` of Ptos2.
/// `indice` is the own point last passed, `tramo` the run, from 1, `NumSinc` the number of runs.
/// All rows of the other side in one gap give the same point, on purpose. Raises 9, 6.
void InsertaPtoTramo(AdjustedSide& side, std::int32_t destino, std::int32_t indice,
                     std::int32_t tramo, std::int32_t NumSinc);

/// Makes PtosA2 and PtosB2 from PtosA and PtosB. Without an error route of its own: a missing
/// TEMP_AJUSTE, a side with fewer sync points than TxtTotalCtrlPtos_A says, OptZ of 0 and the like
/// raise, and leave the hourglass on: the failure is told and stops the command alone.
void Cmd_Ajuste_Click();

} // namespace velmora
