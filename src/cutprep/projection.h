// The last step of the adjustment: each pair of points is carried outward along its line.
#pragma once

namespace velmora {

/// Replaces X and Y of PtosA2 and PtosB2 by their places at the distances OptX and OptY, where the
/// sides lie OptZ apart. The factor is (OptZ + OptX) / OptZ, on purpose. Raises 11 or 6 for OptZ of
/// 0, 9 when PtosB2 is the shorter one; nothing is changed then.
void project_results();

} // namespace velmora
