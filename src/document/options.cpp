#include "document/options.h"

#include "document/flag.h"
#include "document/number_text.h"
#include "document/refresh.h"
#include "document/shown.h"
#include "document/state/options.h"
#include "document/state/program.h"
#include "document/state/settings.h"
#include "document/state/view.h"
#include "document/text_box.h"
#include "document/windows/velmora.h"
#include "document/windows/winoptions.h"
#include "runtime/numbers.h"

namespace velmora {

namespace {

void show_precision() {
    set_TxtPrecision(CStr(state::settings.Def_Dec));
}

void show_zoom() {
    shown::ZoomFactor().show(state::settings.Def_Zoom);
}

void take_copies_then_boxes() {
    take_working_copies();
    take_start_zoom();
    shown::PutArc().show(state::settings.Def_Arc);
    shown::PutCircle().show(state::settings.Def_ACircle);
    show_precision();
    show_zoom();
}

void take_one_by_one() {
    take_start_zoom();
    show_zoom();
    state::options.Precision = state::settings.Def_Dec;
    show_precision();
    shown::PutArc().put(state::settings.Def_Arc);
    shown::PutCircle().put(state::settings.Def_ACircle);
}

} // namespace

void TxtPrecision_Change() {
    if (state::program.FirstActivate != False)
        return;
    if (runtime::Val(state::winoptions.TxtPrecision) > 0)
        Apply_Precision();
}

void set_TxtPrecision(std::string_view text) {
    put_text(state::winoptions.TxtPrecision, text, TxtPrecision_Change);
}

void take_start_zoom() {
    state::view.ZoomFactor = state::settings.Def_Zoom > 0 ? state::settings.Def_Zoom : 1.0;
}

void take_stored_zoom() {
    shown::ZoomFactor().put(state::settings.Def_Zoom);
}

void take_working_copies() {
    state::options.PutArc = state::settings.Def_Arc;
    state::options.PutCircle = state::settings.Def_ACircle;
    state::options.Precision = state::settings.Def_Dec;
    state::view.ZoomFactor = state::settings.Def_Zoom;
}

// In both orders Precision comes before its box: a box that takes another text rounds the shape,
// and to the new value.
void take_defaults(Defaults order) {
    if (order == Defaults::copies_first)
        take_copies_then_boxes();
    else
        take_one_by_one();
}

void take_colours() {
    state::Velmora.pic_BackColor = state::settings.cl_fondo;
    state::Velmora.lbl_xyfloat_ForeColor = state::settings.cl_coords;
}

} // namespace velmora
