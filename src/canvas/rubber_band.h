// The painters that follow the pointer: they repaint what moves and nothing else.
#pragma once

namespace velmora {

/// Moves the selected point to a world position, rounded to Precision, repainting its two segments.
/// The error route is Dibuja's without the case of 9, and an overflow ends it without a message.
void DibujaDrag(double x, double y);
/// The rubber band of the insertion mode, from the selected point to a world position, rounded to
/// Precision. Error route as DibujaDrag's.
void DibujaCreate(double x, double y);

} // namespace velmora
