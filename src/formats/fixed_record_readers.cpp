#include "formats/readers.h"

namespace velmora {
std::int16_t CargaSLWS(std::string_view) {
    return 0;
}
std::int16_t CargaSLWSINC(std::string_view) {
    return 0;
}
} // namespace velmora
