// World and canvas: the mapping, and the painters that follow the pointer.
#pragma once

namespace velmora {

/// Pixel position of a world point, unrounded; raises 6 beyond f64.
[[nodiscard]] double canvas_x(double x);
[[nodiscard]] double canvas_y(double y);
/// World position of a pixel.
[[nodiscard]] double world_x(double px);
[[nodiscard]] double world_y(double py);

/// Moves the selected point to a world position, rounded to Precision, repainting its two segments.
void DibujaDrag(double x, double y);
/// The rubber band of the insertion mode, from the selected point to a world position.
void DibujaCreate(double x, double y);

/// The open dialog for a background picture.
void CargaImagen();

} // namespace velmora
