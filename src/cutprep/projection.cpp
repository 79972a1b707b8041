#include "cutprep/projection.h"

#include "document/forma.h"
#include "document/state/workbench.h"
#include "runtime/numbers.h"

namespace velmora {

namespace {

double outward(double own, double other, double reach) {
    const double way = runtime::checked((own - other) * (state::workbench.OptZ + reach));
    return runtime::checked(runtime::divide(way, state::workbench.OptZ) + own);
}

Pto projected(const Pto& own, const Pto& other, double reach) {
    Pto moved = own;
    moved.X = outward(own.X, other.X, reach);
    moved.Y = outward(own.Y, other.Y, reach);
    return moved;
}

} // namespace

void project_results() {
    Array<Pto> A = state::workbench.PtosA2;
    Array<Pto> B = state::workbench.PtosB2;
    for (std::int32_t i = 0; i <= state::workbench.PtosA2.upper(); ++i) {
        A[i] = projected(state::workbench.PtosA2[i], state::workbench.PtosB2[i],
                         state::workbench.OptX);
        B[i] = projected(state::workbench.PtosB2[i], state::workbench.PtosA2[i],
                         state::workbench.OptY);
    }
    state::workbench.PtosA2.swap(A);
    state::workbench.PtosB2.swap(B);
}

} // namespace velmora
