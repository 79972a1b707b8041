// Loading: which dialect a file is, which reader takes it, what follows a load.
#pragma once

#include <cstdint>
#include <string_view>

namespace velmora {

enum class FileFormat : std::int16_t {
    undecided = 0,
    SLWS = 1,
    SLWSINC = 2,
    NOSLW = 3,
    SLWMD = 4,
    PROFILI = 5,
};

/// The dialect of a DAT file by its first three lines; `undecided` after the box of its own trap.
FileFormat GetFileFormat(std::string_view path);
/// The same where the box is to name the file in another way: the sides of the workbench show
/// capitals.
FileFormat GetFileFormat(std::string_view path, std::string_view shown_path);

/// Loads a file into Forma: `mode` 1 asks for it, any other takes TxtDat_File. `result` is -1 when
/// it was taken in, else 0.
void CargaFichero(std::int16_t mode, std::int16_t& result);

/// The passes over the file and the reader of the dialect; its result.
std::int16_t CargaDAT(std::string_view path, FileFormat format);

/// Offers to move a shape without a point at (0, 0) so that its leftmost point lies there.
void Check00();
/// Index of the first point with the smallest X; 0 when none lies below 100000.
std::int32_t GetMinXPos();

} // namespace velmora
