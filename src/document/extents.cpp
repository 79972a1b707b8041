#include "document/extents.h"

namespace velmora {
double GetMinX(std::string_view) {
    return 0;
}
double GetMaxX(std::string_view) {
    return 0;
}
double GetMinY(std::string_view) {
    return 0;
}
double GetMaxY(std::string_view) {
    return 0;
}
const Array<Pto>* array_of(std::string_view) {
    return nullptr;
}
} // namespace velmora
