#include "shapeops/point_editing.h"

#include "document/flag.h"
#include "document/forma.h"
#include "document/refresh.h"
#include "document/selection.h"
#include "document/shown.h"
#include "document/state/document.h"
#include "document/state/view.h"
#include "runtime/error.h"
#include "runtime/numbers.h"
#include "services/message_codes.h"
#include "services/messages.h"
#include "services/shape_at_hand.h"

#include <algorithm>

namespace velmora {

namespace {

using runtime::checked;

/// Grows the array by `count` and moves the records from `first` on up by as many; copies of them
/// stay below, to be written over.
void make_room(std::int32_t first, std::int32_t count) {
    const std::int32_t upper = Forma.Pto.upper();
    Forma.Pto.redim_keep(upper + count);
    const auto points = Forma.Pto.all();
    std::copy_backward(points.begin() + first, points.begin() + upper + 1, points.end());
}

void set_point(std::int32_t index, double x, double y, std::int16_t sinc) {
    Pto& point = Forma.Pto[index];
    point.X = x;
    point.Y = y;
    point.Sinc = sinc;
}

double midpoint(double a, double b) {
    if (a > b)
        return checked(a - b) / 2 + b;
    if (a < b)
        return checked(b - a) / 2 + a;
    return a;
}

/// One axis of a point between the last point, a, and the first, b: half the other where one end is
/// 0, else the last point again. `zero_end` is the value that the row for a < b tests.
double before_first(double a, double b, double zero_end) {
    if (a > b)
        return b == 0 ? a / 2 + b : checked(a - b) + b;
    if (a < b)
        return zero_end == 0 ? b - b / 2 : b - checked(b - a);
    return b;
}

// On purpose: for X the row a < b tests the Y of the last point.
void place_before_first() {
    const Pto last = Forma.Pto[Forma.Pto.upper()];
    const Pto first = Forma.Pto[state::document.PtoSel + 1];
    Forma.Pto[state::document.PtoSel].X = before_first(last.X, first.X, last.Y);
    Forma.Pto[state::document.PtoSel].Y = before_first(last.Y, first.Y, last.Y);
    state::document.PtoSel = 1;
    Set_CutStart();
    state::document.PtoSel = 0;
}

void place_between_neighbours() {
    const Pto& before = Forma.Pto[state::document.PtoSel - 1];
    const Pto& after = Forma.Pto[state::document.PtoSel + 1];
    Forma.Pto[state::document.PtoSel].X = midpoint(before.X, after.X);
    Forma.Pto[state::document.PtoSel].Y = midpoint(before.Y, after.Y);
}

void remove_selected() {
    const auto points = Forma.Pto.all();
    const std::int32_t new_upper = Forma.Pto.upper() - 1;
    std::copy(points.begin() + state::document.PtoSel + 1, points.end(),
              points.begin() + state::document.PtoSel);
    Forma.Pto.redim_keep(new_upper);
    state::document.PtoSel = state::document.PtoSel == 0 ? new_upper : state::document.PtoSel - 1;
}

} // namespace

// The point at PtoSel loses its sync mark. Before the first point that is the old first one, and
// the sync total does not follow: on purpose.
void Insert_Pto() {
    if (!has_selection())
        raise(error::subscript);
    make_room(state::document.PtoSel, 1);
    if (state::document.PtoSel > 0)
        place_between_neighbours();
    else
        place_before_first();
    Forma.Pto[state::document.PtoSel].Sinc = 0;
    shown::TotalPtos().put(Forma.Pto.upper() + 1);
    Dibuja_unless_NoRedraw();
}

void Delete_Pto() {
    if (!shape_at_hand())
        return;
    if (Forma.Pto.upper() <= 2) {
        MuestraMensaje(message::no_more_deletions);
        return;
    }
    if (!has_selection())
        return;
    if (Forma.Pto[state::document.PtoSel].Sinc == 1)
        shown::TotalSinc().step(-1);
    remove_selected();
    Dibuja_unless_NoRedraw();
    shown::TotalPtos().put(Forma.Pto.upper() + 1);
}

// Only the turn by one clears the old first point's mark, and only the longer turn refreshes: on
// purpose. PtoSel does not follow its point.
void Set_CutStart() {
    if (!has_selection() || state::document.PtoSel == 0)
        return;
    const auto points = Forma.Pto.all();
    if (state::document.PtoSel == 1)
        points.front().Sinc = 0;
    std::ranges::rotate(points, points.begin() + state::document.PtoSel);
    if (state::document.PtoSel == 1)
        return;
    Carga_List_Coords("UPDATE");
    Dibuja_unless_NoRedraw();
}

// The shown count is the upper bound less one, and the sync total does not count the new start: on
// purpose, the next Define_Layout and the sync commands put them right.
void insert_ini() {
    if (!has_selection())
        raise(error::subscript);
    const std::int32_t s = state::document.PtoSel;
    const Pto c = Forma.Pto[s];
    make_room(s + 1, 4);
    set_point(s + 1, c.X, 0, 0);
    set_point(s + 2, 1, 0, 1);
    set_point(s + 3, c.X, 0, 0);
    set_point(s + 4, c.X, c.Y, 0);
    state::document.PtoSel = s + 2;
    Set_CutStart();
    Carga_List_Coords("UPDATE");
    shown::TotalPtos().put(Forma.Pto.upper() - 1);
    Dibuja_unless_NoRedraw();
}

// The mark on point 0 is how Esc finds the old first point again.
void Insert_N_Ptos() {
    if (!has_selection())
        return;
    state::document.PtoSelAnt = state::document.PtoSel;
    for (Pto& point : Forma.Pto.all())
        point.Marca = 0;
    Forma.Pto[0].Marca = 1;
    Set_CutStart();
    state::document.PtoSel = 0;
    state::view.PtosToInsertMode = True;
}

} // namespace velmora
