// The picture of the cut in space: towers, table, the block of foam, what has been cut of it, the
// wire. Drawn from back to front by the toolkit's own painter.
#pragma once

#include "cutview/space_view.h"
#include "forms/cut_scene.h"
#include "ui/cut_colours.h"
#include "ui/cut_shown.h"

class QPainter;

namespace velmora {

void draw_space(QPainter& painter, const CutShown& shown, const CutScene& scene,
                const cutview::SpaceView& view, const CutColours& colours);

/// What a view is fitted to.
[[nodiscard]] std::array<cutview::Place, 8> outermost_of(const CutScene& scene);

} // namespace velmora
