#include "canvas/zoom.h"

#include "document/refresh.h"
#include "document/shown.h"

namespace velmora {

double zoom_above(double zoom) {
    if (zoom < 10)
        return zoom + 1;
    if (zoom < 100)
        return zoom + 10;
    if (zoom < 1000)
        return zoom + 100;
    return zoom + 1000;
}

double zoom_below(double zoom) {
    if (zoom <= 1)
        return zoom;
    if (zoom <= 10)
        return zoom - 1;
    if (zoom <= 100)
        return zoom - 10;
    if (zoom <= 1000)
        return zoom - 100;
    return zoom - 1000;
}

void zoom_to(double zoom) {
    shown::ZoomFactor().put(zoom);
    Define_Layout();
    Dibuja();
}

} // namespace velmora
