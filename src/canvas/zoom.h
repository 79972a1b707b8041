// The ladder of zooms, and what every change of the zoom does.
#pragma once

namespace velmora {

/// The next step up and down. Where the decades meet the two differ on purpose: from 10 up to 20,
/// down to 9. From 1 or below it goes no lower.
[[nodiscard]] double zoom_above(double zoom);
[[nodiscard]] double zoom_below(double zoom);

/// ZoomFactor and its box, then the refresh of a zoom: Define_Layout, Dibuja.
void zoom_to(double zoom);

} // namespace velmora
