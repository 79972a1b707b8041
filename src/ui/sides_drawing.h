// The picture of both outlines: joined lines by runs, sync points with their ordinals, the wire.
#pragma once

#include "cutview/plane_view.h"
#include "ui/cut_colours.h"
#include "ui/cut_shown.h"

class QPainter;

namespace velmora {

/// What stays as it is while the wire goes.
void draw_sides(QPainter& painter, const CutShown& shown, const cutview::PlaneView& view,
                const CutColours& colours);
/// The wire between the two outlines.
void draw_wire_on_sides(QPainter& painter, const CutShown& shown, const cutview::PlaneView& view,
                        const CutColours& colours);

/// Both outlines of the plane that is shown.
[[nodiscard]] cutview::Extent extent_of_sides(const CutShown& shown);
/// What a finding speaks of; empty where it has no place.
[[nodiscard]] cutview::Extent extent_of_mark(const CutShown& shown);

} // namespace velmora
