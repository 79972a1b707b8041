// The ladder of zooms.
#pragma once

namespace velmora {

/// The next step up and down. Where the decades meet the two differ on purpose: from 10 up to 20,
/// down to 9. From 1 or below it goes no lower.
[[nodiscard]] double zoom_above(double zoom);
[[nodiscard]] double zoom_below(double zoom);

} // namespace velmora
