// What the pointer does on the canvas. The flags overlap; here is which of them wins.
#pragma once

#include "document/state/view.h"

namespace velmora {

enum class CanvasMode {
    moves_shape,   ///< MoveShapeMode: the next release is the shape's new place
    adds_points,   ///< PtosToInsertMode: presses add and remove points
    shows_nothing, ///< NoRedraw: nothing has been drawn to pick from
    picks_points,  ///< hover, select, drag, menu
};

/// The mode by the first flag that is set, in the order of the names above. A drag (DragPto) goes
/// on in every mode.
[[nodiscard]] inline CanvasMode canvas_mode() {
    if (state::view.MoveShapeMode)
        return CanvasMode::moves_shape;
    if (state::view.PtosToInsertMode)
        return CanvasMode::adds_points;
    return state::view.NoRedraw ? CanvasMode::shows_nothing : CanvasMode::picks_points;
}

} // namespace velmora
