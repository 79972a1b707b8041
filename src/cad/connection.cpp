#include "cad/connection.h"

namespace velmora {
AcadConnection& acad() {
    static AcadConnection connection;
    return connection;
}
void ReconectaAcad() {}
} // namespace velmora
