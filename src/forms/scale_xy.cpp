#include "forms/scale_xy.h"

#include "document/number_text.h"
#include "document/refresh.h"
#include "document/state/document.h"
#include "document/text_box.h"
#include "document/windows/scale_xy.h"
#include "forms/numeric_box.h"
#include "platform/platform.h"
#include "platform/program_windows.h"
#include "runtime/numbers.h"
#include "services/window_literals.h"
#include "shapeops/scaling.h"

namespace velmora {

namespace {

constexpr std::string_view kWindow = "Scale_xy";

void enable_ok_by(const std::string& x, const std::string& y) {
    state::Scale_xy.cmd_ok_enabled = reads_non_zero(x) && reads_non_zero(y);
}

void fixed_changed() {
    enable_ok_by(state::Scale_xy.txt_fixed_x, state::Scale_xy.txt_fixed_y);
}

void percent_changed() {
    enable_ok_by(state::Scale_xy.txt_percent_x, state::Scale_xy.txt_percent_y);
}

NumericBox box_of(ScaleBox box) {
    ScaleXyWindow& window = state::Scale_xy;
    switch (box) {
    case ScaleBox::fixed_x:
        return {kWindow, "txt_fixed_x", window.txt_fixed_x, ".", "0", fixed_changed};
    case ScaleBox::fixed_y:
        return {kWindow, "txt_fixed_y", window.txt_fixed_y, ".", "0", fixed_changed};
    case ScaleBox::percent_x:
        return {kWindow, "txt_percent_x", window.txt_percent_x, ".", "0", percent_changed};
    case ScaleBox::percent_y:
        break;
    }
    return {kWindow, "txt_percent_y", window.txt_percent_y, ".", "0", percent_changed};
}

void choose(bool fixed) {
    state::Scale_xy.Opt_fixed = fixed;
    state::Scale_xy.frm_fixed_enabled = fixed;
    state::Scale_xy.frm_percent_enabled = !fixed;
}

} // namespace

void Scale_xy_Load() {
    state::Scale_xy = {};
    load_literals(kWindow);
    ScaleXyWindow& window = state::Scale_xy;
    put_text(window.txt_fixed_x, CStr(state::document.Longitud), fixed_changed);
    put_text(window.txt_fixed_y, CStr(state::document.Altura), fixed_changed);
    put_text(window.txt_percent_x, "100", percent_changed);
    put_text(window.txt_percent_y, "100", percent_changed);
}

void Opt_fixed_Click() {
    choose(true);
    fixed_changed();
}

void Opt_percent_Click() {
    choose(false);
    percent_changed();
}

void Scale_xy_Change(ScaleBox box) {
    box_of(box).changed();
}

int Scale_xy_KeyPress(ScaleBox box, int key) {
    return numeric_key(box_of(box), key == ',' ? '.' : key);
}

// The window stays open, so that a scale can be applied again to its own result.
void Scale_xy_cmd_ok_Click() {
    const ScaleXyWindow& window = state::Scale_xy;
    if (window.Opt_fixed)
        ScaleXY(runtime::Val(window.txt_fixed_x), runtime::Val(window.txt_fixed_y), 1);
    else
        ScaleXY(runtime::Val(window.txt_percent_x), runtime::Val(window.txt_percent_y), 0);
    Apply_Precision();
    Carga_List_Coords("UPDATE");
    Define_Layout();
    Dibuja();
}

void Scale_xy_cmd_cancel_Click() {
    platform().windows.unload(kWindow);
}

} // namespace velmora
