#include "canvas/view.h"
#include "document/refresh.h"

namespace velmora {
void Dibuja() {}
void Dibuja_unless_NoRedraw() {}
void Define_Layout() {}
void clear_canvas() {}
double canvas_x(double x) {
    return x;
}
double canvas_y(double y) {
    return y;
}
double world_x(double x) {
    return x;
}
double world_y(double y) {
    return y;
}
void DibujaDrag(double, double) {}
void DibujaCreate(double, double) {}
void CargaImagen() {}
} // namespace velmora
