// The logic of the window ajuste_opt: the three distances of the adjustment.
#pragma once

#include "document/windows/ajuste_opt.h"

namespace velmora {

enum class AjusteOptBox { txt_X, txt_Y, txt_Z };

/// Load: each box shows its stored value unless that is 0, each filling a change; literals.
void ajuste_opt_Load();
/// A box's text changed (it is in state::ajuste_opt): cmb_ok is enabled exactly when all three
/// values are other than 0. Raises 6 for a text beyond f64.
void ajuste_opt_Change();
/// A key of a box: the key to take, 0 to swallow it.
[[nodiscard]] int ajuste_opt_KeyPress(AjusteOptBox box, int key);
/// Keeps the three values and closes the window. Its close box keeps nothing.
void cmb_ok_Click();

} // namespace velmora
