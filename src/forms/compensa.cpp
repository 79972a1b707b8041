#include "forms/compensa.h"

#include "cutprep/compensation.h"
#include "document/forma.h"
#include "document/windows/compensa.h"
#include "forms/numeric_box.h"
#include "platform/platform.h"
#include "platform/program_windows.h"
#include "runtime/numbers.h"
#include "services/window_literals.h"

namespace velmora {

namespace {

constexpr std::string_view kWindow = "Compensa";

} // namespace

void Compensa_Load() {
    state::Compensa = {};
    load_literals(kWindow);
}

void Txt_merma_Change() {
    state::Compensa.cmd_ok_enabled = reads_non_zero(state::Compensa.Txt_merma);
}

int Txt_merma_KeyPress(int key) {
    return numeric_key(
        {kWindow, "Txt_merma", state::Compensa.Txt_merma, ".", "0", Txt_merma_Change}, key);
}

void Compensa_cmd_ok_Click() {
    Forma.Paralela = compensated(Forma.Pto, runtime::Val(state::Compensa.Txt_merma));
    platform().windows.unload(kWindow);
}

void Compensa_cmd_cancel_Click() {
    platform().windows.unload(kWindow);
}

} // namespace velmora
