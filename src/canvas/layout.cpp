// Define_Layout: view and figures of a shape.
#include "document/extents.h"
#include "document/feedback.h"
#include "document/forma.h"
#include "document/number_text.h"
#include "document/refresh.h"
#include "document/shown_counts.h"
#include "document/state/document.h"
#include "document/state/view.h"
#include "document/windows/velmora.h"
#include "document/windows/wininfo.h"
#include "runtime/numbers.h"

namespace velmora {

namespace {

struct Extents {
    double max_x;
    double min_x;
    double max_y;
    double min_y;
};

Extents extents_of_shape() {
    const double max_x = GetMaxX("0");
    const double min_x = GetMinX("0");
    const double max_y = GetMaxY("0");
    return {max_x, min_x, max_y, GetMinY("0")};
}

void show(double value, double& figure, std::string& box) {
    figure = runtime::checked(value);
    box = CStr(value);
}

void show_figures(const Extents& extents) {
    WinInfo& info = state::wininfo;
    show(extents.max_x - extents.min_x, state::document.Longitud, info.Txt_longitud);
    show(extents.max_y - extents.min_y, state::document.Altura, info.Txt_Altura);
    show(Forma.Pto[0].X, state::document.OrigX, info.TxtOrigX);
    show(Forma.Pto[0].Y, state::document.OrigY, info.TxtOrigY);
    show_TotalPtos(Forma.Pto.upper() + 1);
}

/// The lower left corner for a shape without negatives, near the middle for another.
void place_scroll_bars(const Extents& extents) {
    state::Velmora.SSScroll_x = extents.min_x < 0 ? 1.0 / 5 : 0;
    state::Velmora.SSScroll_y = extents.min_y < 0 ? 1.0 / 3 : 1;
    ++state::Velmora.SSScroll_moves;
}

} // namespace

void Define_Layout() {
    const Extents extents = extents_of_shape();
    state::view.MinXForma = extents.min_x;
    state::view.MinYForma = extents.min_y;
    show_figures(extents);
    if (state::view.ZoomFactor <= 0)
        state::view.ZoomFactor = 1;
    DoEvents();
    place_scroll_bars(extents);
}

} // namespace velmora
