// The picture under the drawing.
#pragma once

namespace velmora {

/// Asks for a picture file and puts it under the drawing; cancelled, nothing happens. Raises 53,
/// 481 and 7 as Surface::set_picture does.
void CargaImagen();

} // namespace velmora
