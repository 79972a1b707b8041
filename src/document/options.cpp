#include "document/options.h"

#include "document/flag.h"
#include "document/number_text.h"
#include "document/refresh.h"
#include "document/state/options.h"
#include "document/state/program.h"
#include "document/state/settings.h"
#include "document/state/view.h"
#include "document/text_box.h"
#include "document/windows/winoptions.h"
#include "runtime/numbers.h"

namespace velmora {

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

// The working copies come first, so that a changed TxtPrecision rounds to the new Precision.
void take_defaults() {
    state::options.PutArc = state::settings.Def_Arc;
    state::options.PutCircle = state::settings.Def_ACircle;
    state::options.Precision = state::settings.Def_Dec;
    take_start_zoom();
    state::winoptions.TxtPutArc = CStr(state::settings.Def_Arc);
    state::winoptions.TxtPutCircle = CStr(state::settings.Def_ACircle);
    set_TxtPrecision(CStr(state::settings.Def_Dec));
    state::winoptions.Txt_zoom = CStr(state::settings.Def_Zoom);
}

} // namespace velmora
