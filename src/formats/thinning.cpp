#include "formats/thinning.h"

#include "document/feedback.h"
#include "document/forma.h"
#include "document/shown.h"
#include "services/message_codes.h"
#include "services/messages.h"

namespace velmora {

namespace {

void count_removed(std::int32_t& removed) {
    shown::PtosSuprimidos().put(++removed);
    DoEvents();
}

/// The outline without the points inside a run of equal values of one coordinate. The first point
/// and the last two always stay.
Array<Pto> without_runs(const Array<Pto>& points, double Pto::*coordinate, std::int32_t& removed) {
    Array<Pto> kept;
    const std::int32_t upper = points.upper();
    kept.append(points[0]);
    double previous = points[0].*coordinate;
    for (std::int32_t i = 1; i <= upper - 2; ++i) {
        const double current = points[i].*coordinate;
        if (previous == current && current == points[i + 1].*coordinate)
            count_removed(removed);
        else
            kept.append(points[i]);
        previous = current;
    }
    kept.append(points[upper - 1]);
    kept.append(points[upper]);
    return kept;
}

/// Repeats are counted like removed points but stay in the outline, on purpose.
void count_repeats(const Array<Pto>& points, std::int32_t& removed) {
    for (std::int32_t i = 0; i < points.upper(); ++i)
        if (same_place(points[i], points[i + 1]))
            count_removed(removed);
}

} // namespace

void OptimizaPtos() {
    if (Forma.Pto.upper() <= 2)
        return;
    LongOperation operation(GetMensaje(message::optimising));
    std::int32_t removed = 0;
    Array<Pto> scratch = without_runs(Forma.Pto, &Pto::X, removed);
    scratch = without_runs(scratch, &Pto::Y, removed);
    Forma.Pto.swap(scratch);
    count_repeats(Forma.Pto, removed);
    shown::PtosSuprimidos().put(removed);
    operation.finish(GetMensaje(message::optimised));
}

} // namespace velmora
