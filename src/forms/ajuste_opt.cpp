#include "forms/ajuste_opt.h"

#include "document/number_text.h"
#include "document/state/workbench.h"
#include "document/text_box.h"
#include "document/windows/ajuste_opt.h"
#include "forms/numeric_box.h"
#include "platform/platform.h"
#include "platform/program_windows.h"
#include "runtime/numbers.h"
#include "services/window_literals.h"

#include <string>
#include <string_view>

namespace velmora {

namespace {

constexpr std::string_view kWindow = "ajuste_opt";

void offer_stored(std::string& box, double stored) {
    if (stored != 0)
        put_text(box, CStr(stored), ajuste_opt_Change);
}

NumericBox box_of(AjusteOptBox box) {
    AjusteOptWindow& window = state::ajuste_opt;
    switch (box) {
    case AjusteOptBox::txt_X:
        return {kWindow, "txt_X", window.txt_X, ".", "0", ajuste_opt_Change};
    case AjusteOptBox::txt_Y:
        return {kWindow, "txt_Y", window.txt_Y, ".", "0", ajuste_opt_Change};
    case AjusteOptBox::txt_Z:
        break;
    }
    return {kWindow, "txt_Z", window.txt_Z, ".", "0", ajuste_opt_Change};
}

} // namespace

void ajuste_opt_Load() {
    state::ajuste_opt = {};
    load_literals(kWindow);
    offer_stored(state::ajuste_opt.txt_X, state::workbench.OptX);
    offer_stored(state::ajuste_opt.txt_Y, state::workbench.OptY);
    offer_stored(state::ajuste_opt.txt_Z, state::workbench.OptZ);
}

void ajuste_opt_Change() {
    AjusteOptWindow& window = state::ajuste_opt;
    window.cmb_ok_enabled = reads_non_zero(window.txt_X) && reads_non_zero(window.txt_Y) &&
                            reads_non_zero(window.txt_Z);
}

int ajuste_opt_KeyPress(AjusteOptBox box, int key) {
    return numeric_key(box_of(box), key);
}

void cmb_ok_Click() {
    const AjusteOptWindow& window = state::ajuste_opt;
    state::workbench.OptX = runtime::Val(window.txt_X);
    state::workbench.OptZ = runtime::Val(window.txt_Z);
    state::workbench.OptY = runtime::Val(window.txt_Y);
    platform().windows.unload(kWindow);
}

} // namespace velmora
