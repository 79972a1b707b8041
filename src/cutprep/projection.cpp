#include "cutprep/projection.h"

#include "runtime/numbers.h"

namespace velmora {

namespace {

double outward(double own, double other, double reach, double between) {
    const double way = runtime::checked((own - other) * (between + reach));
    return runtime::checked(runtime::divide(way, between) + own);
}

Pto carried(const Pto& own, const Pto& other, double reach, double between) {
    Pto moved = own;
    moved.X = outward(own.X, other.X, reach, between);
    moved.Y = outward(own.Y, other.Y, reach, between);
    return moved;
}

} // namespace

TwoSides projected(const Array<Pto>& A, const Array<Pto>& B, const Distances& to) {
    TwoSides moved{A, B};
    for (std::int32_t i = 0; i <= A.upper(); ++i) {
        moved.A[i] = carried(A[i], B[i], to.X, to.Z);
        moved.B[i] = carried(B[i], A[i], to.Y, to.Z);
    }
    return moved;
}

} // namespace velmora
