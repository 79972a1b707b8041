// Dibuja: the whole picture from nothing, in a fixed order.
#include "canvas/paralela.h"
#include "canvas/view.h"
#include "document/feedback.h"
#include "document/flag.h"
#include "document/forma.h"
#include "document/refresh.h"
#include "document/selection.h"
#include "document/state/document.h"
#include "document/state/settings.h"
#include "document/state/view.h"
#include "document/windows/velmora.h"
#include "platform/platform.h"
#include "runtime/numbers.h"
#include "services/message_codes.h"
#include "services/messages.h"

#include <optional>
#include <span>
#include <vector>

namespace velmora {

namespace {

constexpr std::int32_t kPointRadius = 3;
constexpr std::int32_t kSyncRadius = 5;
constexpr double kSelectionHalf = 2;

/// The pixels of a Polyline, kept from one repaint to the next for its memory alone.
std::vector<PixelPoint> PtoPoly;

/// The two axes, and with them the place of the world's origin. They go by the extents of the last
/// Define_Layout, not by the present points.
void draw_axes(Surface& pic) {
    const double width = pic.Width();
    const double height = pic.Height();
    const double right = width / kCanvasTwips;
    const double bottom = height / kCanvasTwips;
    const double x = origin_on_x(state::view.MinXForma, width);
    pic.Line(to_single(x), 0, to_single(x), to_single(bottom));
    state::view.CanvasX0 = x;
    const double y = origin_on_y(state::view.MinYForma, height);
    pic.Line(0, to_single(y), to_single(right), to_single(y));
    state::view.CanvasY0 = y;
}

void move_to(Surface& pic, const Pto& point) {
    const PixelPoint pixel = pixel_of(point);
    pic.MoveToEx(pixel.x, pixel.y);
}

void line_to(Surface& pic, const Pto& point) {
    const PixelPoint pixel = pixel_of(point);
    pic.LineTo(pixel.x, pixel.y);
}

void draw_first_segments(Surface& pic) {
    pic.set_pen(state::settings.cl_linea1);
    move_to(pic, Forma.Pto[0]);
    line_to(pic, Forma.Pto[1]);
    pic.set_pen(state::settings.cl_linea2);
    line_to(pic, Forma.Pto[2]);
    pic.set_pen(state::settings.cl_lineas);
}

/// The operation's count has 16 bits: more points are an overflow.
void polyline(Surface& pic) {
    static_cast<void>(runtime::to_int16(static_cast<double>(PtoPoly.size())));
    pic.Polyline(PtoPoly);
}

void draw_from_point_2(Surface& pic) {
    const std::span<const Pto> points = Forma.Pto.all().subspan(2);
    PtoPoly.resize(points.size());
    for (std::size_t i = 0; i < points.size(); ++i)
        PtoPoly[i] = pixel_of(points[i]);
    polyline(pic);
}

/// Closes the figure on the screen, whether or not the data is closed.
void draw_closing_segment(Surface& pic) {
    pic.set_pen(state::settings.cl_lineas);
    if (state::view.PtosToInsertMode)
        return;
    move_to(pic, Forma.Pto[Forma.Pto.upper()]);
    line_to(pic, Forma.Pto[0]);
}

void draw_circle(Surface& pic, PixelPoint centre, std::int32_t radius) {
    const auto edge = [](std::int32_t from, std::int32_t distance) {
        return to_pixel(static_cast<double>(from) + distance);
    };
    pic.Arc(edge(centre.x, -radius), edge(centre.y, -radius), edge(centre.x, radius),
            edge(centre.y, radius));
}

void draw_sync_glyph(Surface& pic, PixelPoint centre) {
    pic.set_pen(state::settings.cl_puntosinc);
    draw_circle(pic, centre, kSyncRadius);
    pic.set_pen(state::settings.cl_punto);
}

void draw_glyphs(Surface& pic) {
    if (!state::view.ShowPtos && !state::view.ShowPtosCtrl)
        return;
    pic.set_pen(state::settings.cl_punto);
    for (const Pto& point : Forma.Pto.all()) {
        const PixelPoint centre = pixel_of(point);
        if (state::view.ShowPtos)
            draw_circle(pic, centre, kPointRadius);
        if (state::view.ShowPtosCtrl && point.Sinc == 1)
            draw_sync_glyph(pic, centre);
    }
}

void draw_selection(Surface& pic) {
    pic.set_pen(state::settings.cl_lineas);
    if (!has_selection() || state::view.PtosToInsertMode)
        return;
    const double x = canvas_x(Forma.Pto[state::document.PtoSel].X);
    const double y = canvas_y(Forma.Pto[state::document.PtoSel].Y);
    pic.FillBox(to_single(x - kSelectionHalf), to_single(y - kSelectionHalf),
                to_single(x + kSelectionHalf), to_single(y + kSelectionHalf),
                state::settings.cl_puntosel);
}

/// Without a compensated outline the bound itself raises 9: the normal end of a repaint.
void draw_paralela(Surface& pic) {
    PtoPoly.resize(static_cast<std::size_t>(Forma.Paralela.upper()) + 1);
    pic.set_pen(state::settings.cl_ejes);
    const std::span<const Pto> points = Forma.Paralela.all();
    for (std::size_t i = 0; i < points.size(); ++i)
        PtoPoly[i] = paralela_pixel(points[i]);
    polyline(pic);
}

void draw_shape(Surface& pic) {
    draw_first_segments(pic);
    draw_from_point_2(pic);
    draw_closing_segment(pic);
    if (state::view.DragPto)
        return;
    draw_glyphs(pic);
    draw_selection(pic);
    draw_paralela(pic);
}

void report(const RuntimeError& failure) {
    switch (failure.number) {
    case error::overflow:
        MuestraMensaje(message::too_large_to_draw);
        return;
    case error::subscript:
        return;
    default:
        show_trap("Error Dibuja nº: ", failure);
    }
}

} // namespace

void Dibuja() {
    if (!has_shape() && !state::view.PtosToInsertMode) {
        MuestraMensaje(message::no_shape);
        return;
    }
    Surface& pic = platform().pic;
    state::view.NoRedraw = False;
    pic.Cls();
    pic.set_pen(state::settings.cl_ejes);
    draw_axes(pic);
    std::optional<RuntimeError> failure;
    trap([&] { draw_shape(pic); }, [&](const RuntimeError& raised) { failure = raised; });
    // The picture is up before the box is.
    pic.present();
    if (failure)
        report(*failure);
}

void Dibuja_unless_NoRedraw() {
    if (!state::view.NoRedraw)
        Dibuja();
}

void clear_canvas() {
    state::Velmora.lbl_xyfloat_visible = false;
    platform().pic.Cls();
    platform().pic.present();
}

} // namespace velmora
