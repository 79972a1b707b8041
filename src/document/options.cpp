#include "document/options.h"

#include "document/number_text.h"
#include "document/refresh.h"
#include "document/session.h"
#include "document/text_box.h"
#include "runtime/numbers.h"

namespace velmora {

void TxtPrecision_Change() {
    if (session.FirstActivate != False)
        return;
    if (runtime::Val(session.winoptions.TxtPrecision) > 0)
        Apply_Precision();
}

void set_TxtPrecision(std::string_view text) {
    put_text(session.winoptions.TxtPrecision, text, TxtPrecision_Change);
}

void take_start_zoom() {
    session.ZoomFactor = session.Def_Zoom > 0 ? session.Def_Zoom : 1.0;
}

// The working copies come first, so that a changed TxtPrecision rounds to the new Precision.
void take_defaults() {
    session.PutArc = session.Def_Arc;
    session.PutCircle = session.Def_ACircle;
    session.Precision = session.Def_Dec;
    take_start_zoom();
    session.winoptions.TxtPutArc = CStr(session.Def_Arc);
    session.winoptions.TxtPutCircle = CStr(session.Def_ACircle);
    set_TxtPrecision(CStr(session.Def_Dec));
    session.winoptions.Txt_zoom = CStr(session.Def_Zoom);
}

} // namespace velmora
