#include "cutprep/projection.h"

#include "document/session.h"
#include "runtime/numbers.h"

namespace velmora {

namespace {

double outward(double own, double other, double reach) {
    const double way = runtime::checked((own - other) * (session.OptZ + reach));
    return runtime::checked(runtime::divide(way, session.OptZ) + own);
}

Pto projected(const Pto& own, const Pto& other, double reach) {
    Pto moved = own;
    moved.X = outward(own.X, other.X, reach);
    moved.Y = outward(own.Y, other.Y, reach);
    return moved;
}

} // namespace

void project_results() {
    Array<Pto> A = session.PtosA2;
    Array<Pto> B = session.PtosB2;
    for (std::int32_t i = 0; i <= session.PtosA2.upper(); ++i) {
        A[i] = projected(session.PtosA2[i], session.PtosB2[i], session.OptX);
        B[i] = projected(session.PtosB2[i], session.PtosA2[i], session.OptY);
    }
    session.PtosA2.swap(A);
    session.PtosB2.swap(B);
}

} // namespace velmora
