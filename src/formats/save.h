// Saving: the dialog, and all that goes around the writing.
#pragma once

namespace velmora {

/// Asks for path and description; sets FileName, TxtDat_File, TxtDescDat.
void DialogoGuardar();
/// Writes the shape to TxtDat_File in the chosen form, with all that goes around it.
void GeneraFichero();

} // namespace velmora
