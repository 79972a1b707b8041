#include "canvas/print.h"

#include "canvas/printer.h"
#include "canvas/surface.h"
#include "canvas/view.h"
#include "document/extents.h"
#include "document/feedback.h"
#include "document/flag.h"
#include "document/forma.h"
#include "document/state/view.h"
#include "platform/platform.h"
#include "runtime/error.h"
#include "services/shape_at_hand.h"

namespace velmora {

namespace {

constexpr double kMargin = 500; ///< twips from the edge to the axes of a shape without negatives
constexpr float kPointRadius = 30;
constexpr std::uint32_t kBlack = 0;
constexpr std::uint32_t kRed = 255;
/// A point with this in Sinc has no circle; 0 and 1 both have one.
constexpr std::int16_t kNoCircle = -1;

struct PaperPoint {
    float x, y;
};

Printer& printer() {
    if (platform().printer == nullptr)
        raise(error::object_not_set);
    return *platform().printer;
}

/// The origin takes the precision of the printer's current place: 32 bits.
void draw_vertical_axis(const Extents& extents) {
    const double x = extents.min_x < 0 ? printer().Width() / 2 : kMargin;
    printer().Line(to_single(x), 0, to_single(x), to_single(printer().Height()));
    printer().set_CurrentX(to_single(x));
    state::view.CanvasX0 = printer().CurrentX();
}

void draw_horizontal_axis(const Extents& extents) {
    const double height = printer().Height();
    const double y = extents.min_y < 0 ? height / 2 : height - kMargin;
    printer().Line(0, to_single(y), to_single(printer().Width()), to_single(y));
    printer().set_CurrentY(to_single(y));
    state::view.CanvasY0 = printer().CurrentY();
}

PaperPoint place_of(const Pto& point) {
    return {to_single(canvas_x(point.X)), to_single(canvas_y(point.Y))};
}

void draw_segment(const Pto& from, const Pto& to) {
    const PaperPoint begin = place_of(from);
    const PaperPoint end = place_of(to);
    printer().Line(begin.x, begin.y, end.x, end.y);
}

void draw_outline() {
    const std::int32_t upper = Forma.Pto.upper();
    for (std::int32_t i = 0; i < upper; ++i)
        draw_segment(Forma.Pto[i], Forma.Pto[i + 1]);
    draw_segment(Forma.Pto[upper], Forma.Pto[0]);
}

void draw_points() {
    for (const Pto& point : Forma.Pto.all()) {
        if (point.Sinc <= kNoCircle)
            continue;
        const PaperPoint place = place_of(point);
        printer().Circle(place.x, place.y, kPointRadius, kRed);
    }
}

void print_shape() {
    draw_outline();
    DoEvents();
    if (state::view.ShowPtosCtrl) {
        draw_points();
        DoEvents();
    }
    printer().EndDoc();
    DoEvents();
}

} // namespace

void PrintPic() {
    if (!shape_at_hand())
        return;
    const Extents extents =
        extents_of("0", {Bound::max_x, Bound::max_y, Bound::min_x, Bound::min_y});
    state::view.NoRedraw = False;
    printer().set_Orientation(extents.max_x <= extents.max_y ? Orientation::portrait
                                                             : Orientation::landscape);
    draw_vertical_axis(extents);
    draw_horizontal_axis(extents);
    platform().pic.set_pen(kBlack);
    trap(print_shape,
         [](const RuntimeError& failure) { show_trap("Error PrintPic nº: ", failure); });
}

} // namespace velmora
