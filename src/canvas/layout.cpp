// Define_Layout: view and figures of a shape.
#include "document/extents.h"
#include "document/feedback.h"
#include "document/forma.h"
#include "document/refresh.h"
#include "document/shown.h"
#include "document/state/view.h"
#include "document/windows/velmora.h"
#include "runtime/numbers.h"

namespace velmora {

namespace {

void show_figures(const Extents& extents) {
    shown::Longitud().put(runtime::checked(extents.max_x - extents.min_x));
    shown::Altura().put(runtime::checked(extents.max_y - extents.min_y));
    shown::OrigX().put(runtime::checked(Forma.Pto[0].X));
    shown::OrigY().put(runtime::checked(Forma.Pto[0].Y));
    shown::TotalPtos().put(Forma.Pto.upper() + 1);
}

/// The lower left corner for a shape without negatives, near the middle for another.
void place_scroll_bars(const Extents& extents) {
    state::Velmora.SSScroll_x = extents.min_x < 0 ? 1.0 / 5 : 0;
    state::Velmora.SSScroll_y = extents.min_y < 0 ? 1.0 / 3 : 1;
    state::Velmora.SSScroll_middle.reset();
    ++state::Velmora.SSScroll_moves;
}

} // namespace

void Define_Layout() {
    const Extents extents =
        extents_of("0", {Bound::max_x, Bound::min_x, Bound::max_y, Bound::min_y});
    state::view.MinXForma = extents.min_x;
    state::view.MinYForma = extents.min_y;
    show_figures(extents);
    if (state::view.ZoomFactor <= 0)
        state::view.ZoomFactor = 1;
    DoEvents();
    place_scroll_bars(extents);
}

} // namespace velmora
