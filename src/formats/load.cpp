#include "formats/load.h"

namespace velmora {
FileFormat GetFileFormat(std::string_view) {
    return FileFormat::undecided;
}
void CargaFichero(std::int16_t, std::int16_t& result) {
    result = 0;
}
std::int16_t CargaDAT(std::string_view, FileFormat) {
    return 0;
}
void Check00() {}
std::int32_t GetMinXPos() {
    return 0;
}
} // namespace velmora
