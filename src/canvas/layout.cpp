// Define_Layout: view and figures of a shape.
#include "document/extents.h"
#include "document/feedback.h"
#include "document/number_text.h"
#include "document/refresh.h"
#include "document/session.h"
#include "document/shown_counts.h"
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
    WinInfo& info = session.wininfo;
    show(extents.max_x - extents.min_x, session.Longitud, info.Txt_longitud);
    show(extents.max_y - extents.min_y, session.Altura, info.Txt_Altura);
    show(Forma.Pto[0].X, session.OrigX, info.TxtOrigX);
    show(Forma.Pto[0].Y, session.OrigY, info.TxtOrigY);
    show_TotalPtos(Forma.Pto.upper() + 1);
}

/// The lower left corner for a shape without negatives, near the middle for another.
void place_scroll_bars(const Extents& extents) {
    session.Velmora.SSScroll_x = extents.min_x < 0 ? 1.0 / 5 : 0;
    session.Velmora.SSScroll_y = extents.min_y < 0 ? 1.0 / 3 : 1;
    ++session.Velmora.SSScroll_moves;
}

} // namespace

void Define_Layout() {
    const Extents extents = extents_of_shape();
    session.MinXForma = extents.min_x;
    session.MinYForma = extents.min_y;
    show_figures(extents);
    if (session.ZoomFactor <= 0)
        session.ZoomFactor = 1;
    DoEvents();
    place_scroll_bars(extents);
}

} // namespace velmora
