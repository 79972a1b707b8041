#include "cutprep/adjustment.h"

#include "cutprep/merged_list.h"
#include "cutprep/side_totals.h"
#include "document/feedback.h"
#include "document/forma.h"
#include "document/shown.h"
#include "document/state/workbench.h"
#include "runtime/numbers.h"

#include <string>

namespace velmora {

namespace {

/// Where a point between two others lies: at `percent` of the way from `a` to `b`.
double between(double a, double b, double percent) {
    if (a < b)
        return runtime::checked((b - a) / 100.0 * percent + a);
    if (a > b)
        return runtime::checked(a - (a - b) / 100.0 * percent);
    return a;
}

/// The working point after the run's end. After the last run there is no sync point of its ordinal;
/// the last element takes the place of the point that follows.
Pto beyond_run(const AdjustedSide& side, std::int32_t tramo, std::int32_t NumSinc) {
    const Array<Pto>& points = side.side.Trabajo;
    const std::int32_t following = side.syncs.nth(tramo) + 1;
    if (following > points.upper())
        return points[0];
    return points[tramo == NumSinc ? points.upper() : following];
}

/// One pass over the merged list, which gives one element of Ptos2 per row.
class MergedPass {
  public:
    MergedPass(AdjustedSide& own, std::int32_t tramo, std::int32_t NumSinc)
        : own_(own), totals_(totals_of(own.side.lado)), points_(own.side.Ptos2), tramo_(tramo),
          NumSinc_(NumSinc) {}

    void run() {
        points_.redim_keep(own_.Idx);
        MergedList rows;
        take_sync_point(rows);
        for (rows.next(); !rows.at_end(); rows.next())
            take(rows);
        show_total();
    }

  private:
    /// In the place of the last element of the run before.
    void take_sync_point(MergedList& rows) {
        points_[own_.Idx] = {.X = rows.X(), .Y = rows.Y(), .Sinc = 1};
        show_total();
        step_count(totals_.sync_points_of_result, 1);
        DoEvents();
    }

    void take(MergedList& rows) {
        ++own_.Idx;
        points_.redim_keep(own_.Idx);
        if (rows.belongs_to(own_.side.lado))
            take_own(rows);
        else
            InsertaPtoTramo(own_, own_.Idx, orden_, tramo_, NumSinc_);
    }

    /// The sync point that ends the run isn't kept: the next run's first row writes it.
    void take_own(MergedList& rows) {
        points_[own_.Idx] = {.X = rows.X(), .Y = rows.Y()};
        orden_ = rows.orden();
        if (orden_ != own_.Tramo.upper())
            return;
        --own_.Idx;
        points_.redim_keep(own_.Idx);
    }

    void show_total() { show_count(totals_.points_of_result, own_.Idx + 1); }

    AdjustedSide& own_;
    SideTotals totals_;
    Array<Pto>& points_;
    std::int32_t tramo_;
    std::int32_t NumSinc_;
    std::int32_t orden_ = 0; ///< of the own row last read
};

void append_run(AdjustedSide& side) {
    Array<Pto>& points = side.side.Ptos2;
    if (points.upper() == 0)
        side.Idx = -1;
    for (std::int32_t i = 0; i <= side.Tramo.upper(); ++i) {
        ++side.Idx;
        points.redim_keep(side.Idx);
        points[side.Idx].X = side.Tramo[i].X;
        points[side.Idx].Y = side.Tramo[i].Y;
    }
}

void merge_run(AdjustedSide& own, const AdjustedSide& other, std::int32_t tramo,
               std::int32_t NumSinc) {
    fill_merged_list(own, other);
    MergedPass(own, tramo, NumSinc).run();
    DoEvents();
}

/// All runs of one press.
class Runs {
  public:
    explicit Runs(std::int32_t NumSinc) : NumSinc_(NumSinc) {}

    void adjust(const RunTold& tell) {
        for (std::int32_t tramo = 1; tramo <= NumSinc_; ++tramo) {
            tell(tramo);
            adjust_run(tramo);
        }
        transaction_.commit();
    }

  private:
    void adjust_run(std::int32_t tramo) {
        locate_run(A_);
        locate_run(B_);
        CargaTramo(A_, A_.Inicio, A_.Fin);
        CargaTramo(B_, B_.Inicio, B_.Fin);
        if (A_.Tramo.upper() == B_.Tramo.upper()) {
            append_run(A_);
            append_run(B_);
            return;
        }
        transaction_.begin();
        merge_run(A_, B_, tramo, NumSinc_);
        merge_run(B_, A_, tramo, NumSinc_);
    }

    std::int32_t NumSinc_;
    AdjustedSide A_{"A"};
    AdjustedSide B_{"B"};
    MergeTransaction transaction_;
};

void copy_to_work() {
    state::workbench.TrabajoA = state::workbench.PtosA;
    state::workbench.TrabajoB = state::workbench.PtosB;
}

} // namespace

void InsertaPtoTramo(AdjustedSide& side, std::int32_t destino, std::int32_t indice,
                     std::int32_t tramo, std::int32_t NumSinc) {
    const PtoTramo& here = side.Tramo[indice];
    Pto point;
    if (indice + 1 <= side.Tramo.upper()) {
        const PtoTramo& next = side.Tramo[indice + 1];
        point.X = between(here.X, next.X, next.PosPercent);
        point.Y = between(here.Y, next.Y, next.PosPercent);
    } else {
        const Pto next = beyond_run(side, tramo, NumSinc);
        point.X = between(here.X, next.X, 100.0);
        point.Y = between(here.Y, next.Y, 100.0);
    }
    side.side.Ptos2[destino] = point;
}

void adjust_sides(std::int32_t NumSinc, const RunTold& tell) {
    copy_to_work();
    Runs(NumSinc).adjust(tell);
}

} // namespace velmora
