// Loading: the passes over a file, its reader, what follows a load.
#pragma once

#include "formats/file_format.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace velmora {

/// Loads a file into Forma: `mode` 1 asks for it, any other takes TxtDat_File. `result` is -1 when
/// it was taken in, else 0.
void CargaFichero(std::int16_t mode, std::int16_t& result);

/// What a load shows of an outline that Forma holds already: `path` is the name that it gets, and
/// `format` what it was read as. Its first point is its one sync point.
void take_in_imported(const std::string& path, const std::string& format);

/// The passes over the file and the reader of the dialect; its result.
std::int16_t CargaDAT(std::string_view path, FileFormat format);

} // namespace velmora
