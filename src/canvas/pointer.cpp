#include "canvas/pointer.h"

#include "canvas/mode.h"
#include "canvas/rubber_band.h"
#include "canvas/view.h"
#include "document/feedback.h"
#include "document/flag.h"
#include "document/forma.h"
#include "document/number_text.h"
#include "document/pointer_shape.h"
#include "document/refresh.h"
#include "document/selection.h"
#include "document/shown.h"
#include "document/state/document.h"
#include "document/state/view.h"
#include "document/windows/velmora.h"
#include "platform/platform.h"
#include "platform/program_windows.h"
#include "runtime/numbers.h"
#include "services/message_codes.h"
#include "services/messages.h"

#include <cmath>
#include <limits>
#include <string>

namespace velmora {

namespace {

constexpr double kReach = 2;
constexpr float kLabelDistance = 10;

std::string label_of(std::int32_t index) {
    const Pto& point = Forma.Pto[index];
    return "  " + CStr(index) + ": " + (point.Sinc == 1 ? " S " : "") + "(" + CStr(point.X) + " " +
           CStr(point.Y) + ")";
}

void show_label(std::int32_t index, float X, float Y) {
    VelmoraWindow& window = state::Velmora;
    window.lbl_xyfloat = label_of(index);
    window.lbl_xyfloat_Top = Y + kLabelDistance;
    window.lbl_xyfloat_Left = X + kLabelDistance;
    window.lbl_xyfloat_visible = true;
}

void hover(float X, float Y) {
    state::view.HoverPto = HitPto(X, Y);
    if (state::view.HoverPto < 0) {
        set_pointer(pointer::standard);
        state::Velmora.lbl_xyfloat_visible = false;
        return;
    }
    set_pointer(pointer::cross);
    if (state::view.ShowCoords)
        show_label(state::view.HoverPto, X, Y);
}

void refresh_changed_shape() {
    Apply_Precision();
    Carga_List_Coords("UPDATE");
    Define_Layout();
    Dibuja();
}

/// How far the shape goes on one axis. The two additions of 1000 change the last bits, and stay.
double distance(double target, double selected) {
    return (target + 1000) - (selected + 1000);
}

void move_shape() {
    const Pto selected = Forma.Pto[state::document.PtoSel];
    const double dx = distance(state::view.DestX, selected.X);
    const double dy = distance(state::view.DestY, selected.Y);
    for (Pto& point : Forma.Pto.all()) {
        point.X = runtime::checked(point.X + dx);
        point.Y = runtime::checked(point.Y + dy);
    }
}

void drop_shape(float X, float Y) {
    state::view.DestX = world_x(X);
    state::view.DestY = world_y(Y);
    if (has_selection())
        move_shape();
    state::view.MoveShapeMode = False;
    state::Velmora.pic_MousePointer = pointer::standard;
    if (!state::view.NoRedraw)
        refresh_changed_shape();
}

void select_last_point() {
    state::document.PtoSel = Forma.Pto.upper();
    shown::TotalPtos().put(Forma.Pto.upper() + 1);
}

void append_point(float X, float Y) {
    Forma.Pto.append({world_x(X), world_y(Y)});
    select_last_point();
    if (!state::view.CtrlDown)
        return;
    shown::TotalSinc().step(1);
    Forma.Pto[Forma.Pto.upper()].Sinc = 1;
}

/// The shown number of sync points keeps its old value, on purpose.
void remove_last_point() {
    const std::int32_t U = Forma.Pto.upper();
    if (Forma.Pto[U].Sinc == 1)
        --state::document.TotalSinc;
    Forma.Pto.redim_keep(U - 1);
    select_last_point();
}

void edit_by_hand(int Button, float X, float Y) {
    if (Button == kRightButton && Forma.Pto.upper() < 3) {
        MuestraMensaje(message::no_more_deletions);
        return;
    }
    if (Button == kLeftButton)
        append_point(X, Y);
    if (Button == kRightButton)
        remove_last_point();
    refresh_changed_shape();
}

void end_drag() {
    if (!state::view.DragPto)
        return;
    state::view.DragPto = False;
    Dibuja();
}

void open_menu_of_selected() {
    state::Velmora.menus["Pts_To_Next_Sinc"].enabled = Forma.Pto[state::document.PtoSel].Sinc == 1;
    platform().windows.popup_menu("OPT_PTO");
}

void open_point_menu(float X, float Y) {
    state::view.HoverPto = HitPto(X, Y);
    if (state::view.HoverPto < 0)
        return;
    state::document.PtoSel = state::view.HoverPto;
    open_menu_of_selected();
}

} // namespace

std::int32_t HitPto(float X, float Y) {
    constexpr double most = std::numeric_limits<double>::max();
    const double zoom = state::view.ZoomFactor;
    const double x0 = state::view.CanvasX0;
    const double y0 = state::view.CanvasY0;
    std::int32_t index = 0;
    for (const Pto& point : Forma.Pto.all()) {
        const double dx = std::abs(X - (zoom * point.X + x0));
        const double dy = std::abs(Y - (y0 - zoom * point.Y));
        if (!(dx <= most && dy <= most))
            raise(error::overflow);
        if (dx < kReach && dy < kReach)
            return index;
        ++index;
    }
    return -1;
}

void pic_MouseDown(int Button, int, float X, float Y) {
    if (canvas_mode() != CanvasMode::picks_points)
        return;
    state::view.HoverPto = HitPto(X, Y);
    if (state::view.HoverPto < 0)
        return;
    state::document.PtoSel = state::view.HoverPto;
    if (Button == kLeftButton)
        state::view.DragPto = True;
}

void pic_MouseMove(int, int, float X, float Y) {
    const CanvasMode mode = canvas_mode();
    if (mode == CanvasMode::moves_shape)
        return;
    if (mode == CanvasMode::adds_points)
        DibujaCreate(world_x(X), world_y(Y));
    else if (mode == CanvasMode::picks_points)
        hover(X, Y);
    if (state::view.DragPto)
        DibujaDrag(world_x(X), world_y(Y));
}

void pic_MouseUp(int Button, int, float X, float Y) {
    switch (canvas_mode()) {
    case CanvasMode::moves_shape:
        return drop_shape(X, Y);
    case CanvasMode::adds_points:
        return edit_by_hand(Button, X, Y);
    case CanvasMode::shows_nothing:
        return;
    case CanvasMode::picks_points:
        return Button == kRightButton ? open_point_menu(X, Y) : end_drag();
    }
}

void pic_MenuKey() {
    if (canvas_mode() == CanvasMode::picks_points && has_selection())
        open_menu_of_selected();
}

} // namespace velmora
