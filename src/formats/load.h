// Loading: the passes over a file, its reader, what follows a load.
#pragma once

#include "formats/file_format.h"

#include <cstdint>
#include <string_view>

namespace velmora {

/// Loads a file into Forma: `mode` 1 asks for it, any other takes TxtDat_File. `result` is -1 when
/// it was taken in, else 0.
void CargaFichero(std::int16_t mode, std::int16_t& result);

/// The passes over the file and the reader of the dialect; its result.
std::int16_t CargaDAT(std::string_view path, FileFormat format);

} // namespace velmora
