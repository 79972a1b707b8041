#include "document/coord_list.h"
#include "document/refresh.h"

namespace velmora {
std::string row_text(const CoordRow&) {
    return {};
}
void Lst_Coords_Click(std::string_view) {}
void Carga_List_Coords(std::string_view) {}
} // namespace velmora
