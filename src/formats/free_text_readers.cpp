#include "formats/readers.h"

namespace velmora {
std::int16_t CargaSLWMD(std::string_view) {
    return 0;
}
std::int16_t CargaNOSLW(std::string_view) {
    return 0;
}
std::int16_t CargaPROFILI(std::string_view) {
    return 0;
}
} // namespace velmora
