#include "what_holds.h"

#include "document/forma.h"
#include "document/session.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace velmora::random {

namespace {

bool is_finite(const Array<Pto>& points) {
    return !points.dimensioned() || std::ranges::all_of(points.all(), [](const Pto& point) {
        return std::isfinite(point.X) && std::isfinite(point.Y);
    });
}

} // namespace

std::string what_is_broken() {
    if (!Forma.Pto.dimensioned() || Forma.Pto.upper() < 0)
        return "the outline has no element";
    for (const auto* points :
         {&std::as_const(Forma.Pto), &std::as_const(session.PtosA), &std::as_const(session.PtosB),
          &std::as_const(session.PtosA2), &std::as_const(session.PtosB2)})
        if (!is_finite(*points))
            return "a coordinate is not finite";
    // A capture from a picked origin keeps the number of the selected point, on purpose: it may lie
    // beyond the new outline.
    if (session.PtoSel < -1)
        return "the selected point is " + std::to_string(session.PtoSel);
    if (!std::isfinite(session.ZoomFactor))
        return "the zoom is not finite";
    return {};
}

} // namespace velmora::random
