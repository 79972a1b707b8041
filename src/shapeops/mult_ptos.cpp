#include "shapeops/mult_ptos.h"

#include "document/forma.h"
#include "document/number_text.h"
#include "document/refresh.h"
#include "document/shown_counts.h"
#include "document/text_box.h"
#include "document/windows/mult_ptos.h"
#include "platform/form.h"
#include "platform/platform.h"
#include "platform/windows.h"
#include "runtime/numbers.h"
#include "services/literals.h"
#include "services/message_codes.h"
#include "services/messages.h"
#include "services/window_literals.h"

namespace velmora {

namespace {

using runtime::checked;

constexpr std::string_view kWindow = "Mult_Ptos";
/// Shifts both ends of a segment away from 0 and back; it changes the last bits of the result.
constexpr double kShift = 1000;
constexpr double kTooManyPoints = 32001;

/// A factor with a fraction goes to the nearest whole one, as every number kept in an integer.
std::int32_t factor() {
    return runtime::to_int32(runtime::Val(state::Mult_Ptos.Combo1));
}

double between(double p, double q, double parts, double k) {
    if (p < q)
        return checked(q - p) / parts * k + p;
    if (p > q)
        return p - checked(p - q) / parts * k;
    return p;
}

/// Fills the points behind place `d` on the way to point `nxt` of the backup; behind its last comes
/// its first, so that the closing segment gets its points too.
void Interpola(const Array<Pto>& backup, std::int32_t d, std::int32_t nxt, std::int32_t parts) {
    const Pto& from = Forma.Pto[d];
    const Pto& to = backup[nxt > backup.upper() ? 0 : nxt];
    const double px = from.X + kShift;
    const double py = from.Y + kShift;
    const double qx = to.X + kShift;
    const double qy = to.Y + kShift;
    for (std::int32_t k = 1; k < parts; ++k)
        Forma.Pto[d + k] = {between(px, qx, parts, k) - kShift, between(py, qy, parts, k) - kShift,
                            0, 0};
}

void multiply_points() {
    const Array<Pto> backup = Forma.Pto;
    const std::int32_t parts = factor();
    const double points = static_cast<double>(parts) * static_cast<double>(backup.size());
    Forma.Pto.redim(runtime::to_int32(points - 1));
    for (std::int32_t i = 0; i <= backup.upper(); ++i) {
        Forma.Pto[i * parts] = backup[i];
        Interpola(backup, i * parts, i + 1, parts);
    }
}

} // namespace

void Mult_Ptos_Load() {
    state::Mult_Ptos = {};
    if (Form* form = platform().windows.form(kWindow))
        CreaLiterales(*form);
    load_literals(kWindow);
    state::Mult_Ptos.Lbl_NPoints =
        caption_of(kWindow, "Lbl_NPoints") + " " + CStr(Forma.Pto.upper() + 1);
    put_text(state::Mult_Ptos.Combo1, "2", Combo1_Change);
}

void Combo1_Change() {
    const double value = runtime::Val(state::Mult_Ptos.Combo1);
    state::Mult_Ptos.cmd_ok_enabled = value > 0 && value < 1001;
    if (!state::Mult_Ptos.cmd_ok_enabled)
        put_text(state::Mult_Ptos.Combo1, " ", Combo1_Change);
}

void Combo1_Click() {
    state::Mult_Ptos.cmd_ok_enabled = true;
}

void ActualizaNuevoN() {
    const double total = factor() * static_cast<double>(Forma.Pto.size());
    if (total < kTooManyPoints) {
        state::Mult_Ptos.lbl_New_NPoints = GetMensaje(message::new_point_count) + " " + CStr(total);
        state::Mult_Ptos.cmd_ok_enabled = true;
        return;
    }
    MuestraMensaje(message::too_many_points);
    put_text(state::Mult_Ptos.Combo1, "2", Combo1_Change);
    state::Mult_Ptos.cmd_ok_enabled = false;
}

// The shown count is the upper bound less one, on purpose; the next Define_Layout puts it right.
void Mult_Ptos_cmd_ok_Click() {
    if (runtime::Int(runtime::Val(state::Mult_Ptos.Combo1)) < 1)
        return;
    multiply_points();
    Dibuja();
    show_TotalPtos(Forma.Pto.upper() - 1);
    platform().windows.unload(kWindow);
}

void Mult_Ptos_cmd_cancel_Click() {
    platform().windows.unload(kWindow);
}

} // namespace velmora
