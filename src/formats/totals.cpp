#include "formats/totals.h"

#include "document/state/document.h"
#include "document/windows/wininfo.h"
#include "formats/box_text.h"

namespace velmora {

void publish_totals(Totals touched, std::int32_t count) {
    state::document.UltimoPto = count;
    if (touched == Totals::last_point)
        return;
    state::document.TotalPtos = count;
    show_count(state::wininfo.TxtTotalPtos, count);
    if (touched == Totals::points)
        return;
    show_count(state::wininfo.TxtTotalCtrlPtos, 0);
    if (touched == Totals::all)
        state::document.TotalSinc = 0;
}

} // namespace velmora
