// The logic of the window Scale_xy.
#pragma once

#include "document/windows/scale_xy.h"

#include <string>

namespace velmora {

/// The four number boxes.
enum class ScaleBox { fixed_x, fixed_y, percent_x, percent_y };

/// Load: boxes filled in order, each filling a change; literals.
void Scale_xy_Load();
void Opt_fixed_Click();
void Opt_percent_Click();
/// A box's text changed (it is in state::Scale_xy).
void Scale_xy_Change(ScaleBox box);
/// A key of a box: returns the character to take instead, 0 to swallow it.
int Scale_xy_KeyPress(ScaleBox box, int key);
void Scale_xy_cmd_ok_Click();
void Scale_xy_cmd_cancel_Click();

} // namespace velmora
