// Whole-shape arithmetic. Each routine has its own error route: a box, and what was done stays.
#pragma once

namespace velmora {

/// Adds the absolute value of the offset to every X, to every Y.
void PositivaX(double offset);
void PositivaY(double offset);
/// Moves a shape with negative coordinates to the positive side, axis by axis.
void Positivarfrma();
/// Negates every X, every Y.
void MirrorHorDat();
void MirrorVerDat();
/// Reverses the order of cutting; point 0 stays.
void InvertDat();

} // namespace velmora
