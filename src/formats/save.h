// Saving: the dialog, the three output forms, the thinning that goes before.
#pragma once

#include <cstdint>

namespace velmora {

/// Asks for path and description; sets FileName, TxtDat_File, TxtDescDat.
void DialogoGuardar();
/// Writes the shape to TxtDat_File in the chosen form, with all that goes around it.
void GeneraFichero();
/// Writes; -1 done, 0 refused. Raises the file's errors.
std::int16_t EscribeFichero();
/// Drops points inside runs of equal X, then of equal Y; repeats are counted, not dropped.
void OptimizaPtos();
/// Some point has Sinc 1.
[[nodiscard]] bool HayPuntosSinc();

} // namespace velmora
