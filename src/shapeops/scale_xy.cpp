#include "shapeops/scale_xy.h"

namespace velmora {
void Scale_xy_Load() {}
void Opt_fixed_Click() {}
void Opt_percent_Click() {}
void Scale_xy_Change(ScaleBox) {}
int Scale_xy_KeyPress(ScaleBox, int key) {
    return key;
}
void Scale_xy_cmd_ok_Click() {}
void Scale_xy_cmd_cancel_Click() {}
} // namespace velmora
