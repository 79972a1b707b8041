#include "cutprep/runs.h"

#include "runtime/numbers.h"

#include <algorithm>
#include <cmath>

namespace velmora {

namespace {

constexpr double kRunEnd = 100.0;

double chord(const Array<Pto>& points, std::int32_t i) {
    const Pto& here = points[i];
    const Pto& next = points[i + 1 > points.upper() ? 0 : i + 1];
    const double dx = here.X - next.X;
    const double dy = here.Y - next.Y;
    return runtime::checked(std::sqrt(dx * dx + dy * dy));
}

/// Adds working points to a run, and up their chords.
class RunFiller {
  public:
    explicit RunFiller(AdjustedSide& side) : points_(side.side.Trabajo), run_(side.Tramo) {
        run_.redim(0);
    }

    void add(std::int32_t first, std::int32_t last) {
        for (std::int32_t i = first; i <= last; ++i) {
            const double length = chord(points_, i);
            run_.redim_keep(count_);
            run_[count_] = {.Longitud = length, .X = points_[i].X, .Y = points_[i].Y};
            total_ = runtime::checked(total_ + length);
            ++count_;
        }
    }
    [[nodiscard]] double total() const { return total_; }

  private:
    const Array<Pto>& points_;
    Array<PtoTramo>& run_;
    std::int32_t count_ = 0;
    double total_ = 0;
};

void set_positions(Array<PtoTramo>& run, double total) {
    const std::int32_t last = run.upper();
    run[0].PosPercent = 0;
    run[last].PosPercent = kRunEnd;
    double sum = 0;
    for (std::int32_t i = 1; i < last; ++i) {
        sum += run[i - 1].Longitud;
        run[i].PosPercent = runtime::divide(runtime::checked(sum * kRunEnd), total);
    }
}

} // namespace

std::int32_t SiguienteSinc(std::string_view lado, std::int32_t desde) {
    const Array<Pto>& points = side_of(lado).Ptos;
    for (std::int32_t i = desde + 1; i <= points.upper(); ++i)
        if (points[i].Sinc == 1)
            return i;
    return -1;
}

std::int32_t SincN(std::string_view lado, std::int32_t n) {
    const Array<Pto>& points = side_of(lado).Ptos;
    std::int32_t ordinal = -1;
    for (std::int32_t i = 0; i <= points.upper(); ++i)
        if (points[i].Sinc == 1 && ++ordinal == n)
            return i;
    return 0;
}

double LargoCuerda(std::string_view lado, std::int32_t i) {
    return chord(side_of(lado).Trabajo, i);
}

SyncIndex::SyncIndex(const Array<Pto>& points) {
    for (std::int32_t i = 0; i <= points.upper(); ++i)
        if (points[i].Sinc == 1)
            indices_.push_back(i);
}

std::int32_t SyncIndex::next(std::int32_t after) const {
    const auto found = std::ranges::upper_bound(indices_, after);
    return found == indices_.end() ? -1 : *found;
}

std::int32_t SyncIndex::nth(std::int32_t n) const {
    if (n < 0 || static_cast<std::size_t>(n) >= indices_.size())
        return 0;
    return indices_[static_cast<std::size_t>(n)];
}

void locate_run(AdjustedSide& side) {
    side.Inicio = side.syncs.next(side.Inicio);
    if (side.PrimerSinc == -1)
        side.PrimerSinc = side.Inicio;
    side.Fin = side.syncs.next(side.Inicio);
}

void CargaTramo(AdjustedSide& side, std::int32_t inicio, std::int32_t fin) {
    RunFiller filler(side);
    if (fin != -1) {
        filler.add(inicio, fin);
    } else {
        filler.add(inicio, side.side.Trabajo.upper());
        filler.add(0, side.PrimerSinc);
    }
    set_positions(side.Tramo, filler.total());
}

} // namespace velmora
