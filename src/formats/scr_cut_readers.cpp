#include "formats/readers.h"

namespace velmora {
std::int16_t CargaSCR(std::string_view) {
    return 0;
}
std::int16_t CargaCUT(std::string_view) {
    return 0;
}
} // namespace velmora
