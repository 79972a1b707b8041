#include "cutprep/runs.h"

#include "runtime/numbers.h"

#include <algorithm>
#include <cmath>

namespace velmora {

double LargoCuerda(std::string_view lado, std::int32_t i) {
    const Array<Pto>& points = side_of(lado).Trabajo;
    const Pto& here = points[i];
    const Pto& next = points[i + 1 > points.upper() ? 0 : i + 1];
    const double dx = here.X - next.X;
    const double dy = here.Y - next.Y;
    return runtime::checked(std::sqrt(dx * dx + dy * dy));
}

namespace {

constexpr double kRunEnd = 100.0;

/// Adds working points to a run, and up their chords.
class RunFiller {
  public:
    explicit RunFiller(AdjustedSide& side) : side_(side.side), run_(side.Tramo) { run_.redim(0); }

    void add(std::int32_t first, std::int32_t last) {
        for (std::int32_t i = first; i <= last; ++i) {
            const double length = LargoCuerda(side_.lado, i);
            run_.redim_keep(count_);
            run_[count_] = {.Longitud = length, .X = side_.Trabajo[i].X, .Y = side_.Trabajo[i].Y};
            total_ = runtime::checked(total_ + length);
            ++count_;
        }
    }
    [[nodiscard]] double total() const { return total_; }

  private:
    const Side& side_;
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
