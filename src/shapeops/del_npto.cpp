#include "shapeops/del_npto.h"

#include "document/feedback.h"
#include "document/forma.h"
#include "document/number_text.h"
#include "document/refresh.h"
#include "document/selection.h"
#include "document/shown_counts.h"
#include "document/state/document.h"
#include "document/text_box.h"
#include "document/windows/del_npto.h"
#include "platform/platform.h"
#include "platform/windows.h"
#include "runtime/numbers.h"
#include "services/message_codes.h"
#include "services/messages.h"
#include "services/numeric_box.h"
#include "services/window_literals.h"

#include <algorithm>

namespace velmora {

namespace {

constexpr std::string_view kWindow = "del_Npto";
constexpr std::int16_t kKeep = -1;
constexpr std::int16_t kRemove = 0;

NumericBox jump_box() {
    return {.window = kWindow,
            .control = "Txt_JumpPoints",
            .text = state::del_Npto.Txt_JumpPoints,
            .changed = Txt_JumpPoints_Change};
}

NumericBox count_box() {
    return {.window = kWindow,
            .control = "Txt_Numpoints2del",
            .text = state::del_Npto.Txt_Numpoints2del};
}

double jump() {
    return runtime::Val(state::del_Npto.Txt_JumpPoints);
}

double count() {
    return runtime::Val(state::del_Npto.Txt_Numpoints2del);
}

void show_maximum(double points) {
    std::string& label = state::del_Npto.Lbl_Maxpoints;
    label = '(';
    label += CStr(points);
    label += ')';
}

/// Place of the k-th point to go, brought back by at most one turn.
std::int32_t position(double step, std::int32_t k, std::int32_t upper) {
    const std::int32_t place = runtime::to_int32(step * k + state::document.PtoSel);
    return place > upper ? place - upper - 1 : place;
}

/// Nothing to go stands beyond one turn. An interval that was typed before the number can ask for
/// that: it was not looked at with this number.
bool fits(double last) {
    const double most = 2.0 * static_cast<double>(Forma.Pto.size()) - 1;
    const double ends[] = {static_cast<double>(state::document.PtoSel),
                           (jump() + 1) * last + state::document.PtoSel};
    return std::ranges::all_of(ends, [most](double place) {
        const double whole = runtime::Round(place, 0);
        return whole >= 0 && whole <= most;
    });
}

/// The outline with every point marked to stay or to go.
Array<Pto> marked_outline(std::int32_t last) {
    Array<Pto> marked = Forma.Pto;
    for (Pto& point : marked.all())
        point.Marca = kKeep;
    const std::int32_t upper = marked.upper();
    const double step = jump() + 1;
    for (std::int32_t k = 0; k <= last; ++k)
        marked[position(step, k, upper)].Marca = kRemove;
    return marked;
}

/// What is left; one zeroed record when that is nothing, since the outline is never empty.
Array<Pto> kept_of(const Array<Pto>& marked) {
    Array<Pto> kept;
    for (const Pto& point : marked.all())
        if (point.Marca == kKeep)
            kept.append({point.X, point.Y, point.Sinc, 0});
    if (!kept.dimensioned())
        kept.redim(0);
    return kept;
}

} // namespace

void del_Npto_Load() {
    state::del_Npto = {};
    set_pointer(0);
    load_literals(kWindow);
    state::del_Npto.MaxDel = Forma.Pto.upper() - 2;
    put_text(state::del_Npto.Txt_JumpPoints, CStr(0), Txt_JumpPoints_Change);
    show_maximum(state::del_Npto.MaxDel);
}

void Txt_JumpPoints_Change() {
    DelNptoWindow& window = state::del_Npto;
    const double left_between = jump();
    if (left_between <= 0) {
        show_maximum(window.MaxDel);
        return;
    }
    const double step = left_between + 1;
    if (step * count() > window.MaxDel) {
        MuestraMensaje(message::too_many_deletions);
        put_text(window.Txt_JumpPoints, "0", Txt_JumpPoints_Change);
        return;
    }
    show_maximum(window.MaxDel / step);
}

int Txt_JumpPoints_KeyPress(int key) {
    return numeric_key(jump_box(), key);
}

int Txt_Numpoints2del_KeyPress(int key) {
    return numeric_key(count_box(), key);
}

void Txt_Numpoints2del_LostFocus() {
    const double points = count();
    if (points > state::del_Npto.MaxDel)
        MuestraMensaje(message::too_many_deletions);
    else if (points >= 0)
        return;
    reset_box(count_box());
}

// The shown count is the upper bound less one, and sync total and list stay: on purpose, later
// commands put them right.
void del_Npto_cmd_ok_Click() {
    const double points = count();
    if (points <= 0)
        return reset_box(count_box());
    const double last = runtime::Int(points - 1);
    if (!fits(last))
        return void(MuestraMensaje(message::too_many_deletions));
    Array<Pto> kept = kept_of(marked_outline(runtime::to_int32(last)));
    Forma.Pto.swap(kept);
    --state::document.PtoSel;
    if (!has_selection())
        state::document.PtoSel = 0;
    Dibuja();
    show_TotalPtos(Forma.Pto.upper() - 1);
    platform().windows.unload(kWindow);
}

void del_Npto_cmd_cancel_Click() {
    platform().windows.unload(kWindow);
}

} // namespace velmora
