// The thinning that goes before saving.
#pragma once

namespace velmora {

/// Drops points inside runs of equal X, then of equal Y; repeats are counted, not dropped.
void OptimizaPtos();

} // namespace velmora
