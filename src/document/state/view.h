// The canvas: zoom and origin, what is shown, what the pointer is doing, the modes.
#pragma once

#include "document/flag.h"

#include <cstdint>

namespace velmora {

struct ViewState {
    double ZoomFactor = 30000; ///< pixels per unit
    double MinXForma = 0, MinYForma = 0;
    double CanvasX0 = 0, CanvasY0 = 0; ///< pixel position of the world's origin
    Flag ShowPtos = True, ShowPtosCtrl = True, ShowCoords = True;
    Flag NoRedraw = False;
    Flag DragPto = False;
    Flag CtrlDown = False;
    std::int32_t HoverPto = -1;
    double BandaX = 0, BandaY = 0;
    Flag MoveShapeMode = False;
    double DestX = 0, DestY = 0;
    Flag PtosToInsertMode = False;
};

namespace state {
extern ViewState& view;
}

} // namespace velmora
