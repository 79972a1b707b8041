#include "forms/mult_ptos.h"

#include "document/forma.h"
#include "document/number_text.h"
#include "document/refresh.h"
#include "document/shown.h"
#include "document/text_box.h"
#include "document/windows/mult_ptos.h"
#include "platform/form.h"
#include "platform/platform.h"
#include "platform/program_windows.h"
#include "runtime/numbers.h"
#include "services/crea_literales.h"
#include "services/message_codes.h"
#include "services/messages.h"
#include "services/window_literals.h"
#include "shapeops/density.h"

namespace velmora {

namespace {

constexpr std::string_view kWindow = "Mult_Ptos";
constexpr double kTooManyPoints = 32001;

/// A factor with a fraction goes to the nearest whole one, as every number kept in an integer.
std::int32_t factor() {
    return runtime::to_int32(runtime::Val(state::Mult_Ptos.Combo1));
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
    multiply_points(Forma.Pto, factor());
    Dibuja();
    shown::TotalPtos().put(Forma.Pto.upper() - 1);
    platform().windows.unload(kWindow);
}

void Mult_Ptos_cmd_cancel_Click() {
    platform().windows.unload(kWindow);
}

} // namespace velmora
