#include "formats/totals.h"

#include "document/shown.h"
#include "document/state/document.h"

namespace velmora {

void publish_totals(Totals touched, std::int32_t count) {
    state::document.UltimoPto = count;
    if (touched == Totals::last_point)
        return;
    shown::TotalPtos().put(count);
    if (touched == Totals::points)
        return;
    shown::TotalSinc().show(0);
    if (touched == Totals::all)
        shown::TotalSinc().keep(0);
}

} // namespace velmora
