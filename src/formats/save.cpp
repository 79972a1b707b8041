#include "formats/save.h"

namespace velmora {
void DialogoGuardar() {}
void GeneraFichero() {}
std::int16_t EscribeFichero() {
    return 0;
}
void OptimizaPtos() {}
bool HayPuntosSinc() {
    return false;
}
} // namespace velmora
