// The zoom of the wheel: steps of a tenth around the pointer, beside the ladder of the commands.
#pragma once

#include "document/windows/velmora.h"

namespace velmora {

/// A zoom moved by steps of a tenth, up for steps above 0; six digits.
[[nodiscard]] double zoom_by_steps(double zoom, int steps);

/// ZoomFactor and its box by so many steps, then the refresh of a zoom; what stands at the pixel
/// `pointer` of pic stays where it is seen. In, as far as that place stays on the canvas: the panel
/// tells where it ends. Out, as long as the shape measures 10 pixels. Nothing without a picture.
void zoom_around(Spot pointer, int steps);

} // namespace velmora
