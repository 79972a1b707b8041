// The point counts as wininfo shows them, beside the session's own copies.
#pragma once

#include <cstdint>

namespace velmora {

/// TxtTotalPtos and TotalPtos.
void show_TotalPtos(std::int32_t count);

/// TxtTotalCtrlPtos and TotalSinc, both set.
void show_TotalSinc(std::int32_t count);

/// TxtTotalCtrlPtos, read as a number, and TotalSinc, each moved by `step` from where it stands:
/// the two can differ, and nothing recounts them. Raises 6 for a text beyond f64.
void step_TotalSinc(std::int32_t step);

} // namespace velmora
