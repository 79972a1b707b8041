#include "cad/dxf.h"

namespace velmora {
std::int16_t CargaDXF(std::string_view) {
    return 0;
}
} // namespace velmora
