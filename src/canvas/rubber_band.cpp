#include "canvas/rubber_band.h"

#include "canvas/view.h"
#include "document/feedback.h"
#include "document/forma.h"
#include "document/state/document.h"
#include "document/state/options.h"
#include "document/state/settings.h"
#include "document/state/view.h"
#include "platform/platform.h"
#include "runtime/numbers.h"

namespace velmora {

namespace {

double rounded(double value) {
    return runtime::Round(value, runtime::to_int16(state::options.Precision));
}

void line(Surface& pic, const Pto& from, const Pto& to) {
    pic.Line(to_single(canvas_x(from.X)), to_single(canvas_y(from.Y)), to_single(canvas_x(to.X)),
             to_single(canvas_y(to.Y)));
}

struct Pens {
    std::uint32_t into;
    std::uint32_t out_of;
};

Pens pens_of(std::int32_t index) {
    switch (index) {
    case 0:
        return {state::settings.cl_lineas, state::settings.cl_linea1};
    case 1:
        return {state::settings.cl_linea1, state::settings.cl_linea2};
    case 2:
        return {state::settings.cl_linea2, state::settings.cl_lineas};
    default:
        return {state::settings.cl_lineas, state::settings.cl_lineas};
    }
}

/// The mode stays at 5 for the new segments too, on purpose.
void drag(Surface& pic, double x, double y) {
    const std::int32_t s = state::document.PtoSel;
    const std::int32_t U = Forma.Pto.upper();
    const std::int32_t previous = s == 0 ? U : s - 1;
    const std::int32_t next = s == U ? 0 : s + 1;
    pic.set_draw_mode(DrawMode::mask_pen_not);
    pic.set_pen(state::settings.cl_fondo);
    line(pic, Forma.Pto[previous], Forma.Pto[s]);
    line(pic, Forma.Pto[s], Forma.Pto[next]);
    Forma.Pto[s].X = rounded(x);
    Forma.Pto[s].Y = rounded(y);
    const Pens pens = pens_of(s);
    pic.set_pen(pens.into);
    line(pic, Forma.Pto[previous], Forma.Pto[s]);
    pic.set_pen(pens.out_of);
    line(pic, Forma.Pto[s], Forma.Pto[next]);
    pic.set_draw_mode(DrawMode::copy_pen);
}

void stretch(Surface& pic, double x, double y) {
    const Pto end{rounded(x), rounded(y)};
    pic.set_draw_mode(DrawMode::invert);
    pic.set_pen(state::settings.cl_fondo);
    line(pic, Forma.Pto[state::document.PtoSel], {state::view.BandaX, state::view.BandaY});
    pic.set_pen(state::settings.cl_lineas);
    line(pic, Forma.Pto[state::document.PtoSel], end);
    state::view.BandaX = end.X;
    state::view.BandaY = end.Y;
    pic.set_draw_mode(DrawMode::copy_pen);
}

/// A fault leaves the draw mode as it is, until the next call.
template <class Paint>
void paint_over(Paint paint) {
    Surface& pic = platform().pic;
    trap([&] { paint(pic); },
         [](const RuntimeError& failure) {
             if (failure.number != error::overflow)
                 show_trap("Error Dibuja nº: ", failure);
         });
    pic.present();
}

} // namespace

void DibujaDrag(double x, double y) {
    paint_over([&](Surface& pic) { drag(pic, x, y); });
}

void DibujaCreate(double x, double y) {
    paint_over([&](Surface& pic) { stretch(pic, x, y); });
}

} // namespace velmora
