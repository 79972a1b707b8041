// Runs: the stretches of a side between one sync point and the next, the last of them over the
// array's end back to the first sync point. How they are found, and how far along its run each of
// their points lies.
#pragma once

#include "cutprep/side.h"
#include "runtime/array.h"

#include <cstdint>
#include <string_view>
#include <vector>

namespace velmora {

/// A point of a run.
struct PtoTramo {
    double Longitud = 0;   ///< chord to the next point of the working array
    double PosPercent = 0; ///< position in the run, 0 to 100
    double X = 0;
    double Y = 0;
};

/// Length from a working point to the next, to the first from the last. Raises 9, 6.
[[nodiscard]] double LargoCuerda(std::string_view lado, std::int32_t i);

/// The sync points of an outline, found once. The outline must keep its sync points while this is
/// asked.
class SyncIndex {
  public:
    explicit SyncIndex(const Array<Pto>& points);
    /// SiguienteSinc: the lowest index above `after` whose point is a sync point; -1 for none.
    [[nodiscard]] std::int32_t next(std::int32_t after) const;
    /// SincN: the index of the sync point of ordinal `n`, from 0; 0 for none.
    [[nodiscard]] std::int32_t nth(std::int32_t n) const;

  private:
    std::vector<std::int32_t> indices_;
};

/// A side during one press of Cmd_Ajuste.
struct AdjustedSide {
    explicit AdjustedSide(std::string_view lado) : side(side_of(lado)), syncs(side.Ptos) {}

    Side side;
    SyncIndex syncs;
    std::int32_t PrimerSinc = -1; ///< first sync point, -1 until the first run has been located
    std::int32_t Inicio = -1;     ///< sync points that bound the present run
    std::int32_t Fin = -1;        ///< -1 where the run goes over the array's end
    std::int32_t Idx = 0;         ///< last element written in Ptos2
    Array<PtoTramo> Tramo;        ///< the present run
};

/// Moves Inicio and Fin to the next run.
void locate_run(AdjustedSide& side);

/// Rebuilds Tramo from the working points `inicio` to `fin`, or over the array's end to PrimerSinc
/// when `fin` is -1. The total that the percent positions are shares of holds the chord that leaves
/// the last point too, on purpose. Raises 9 for a sync point that isn't there, 11 or 6 where
/// the lengths can't be divided.
void CargaTramo(AdjustedSide& side, std::int32_t inicio, std::int32_t fin);

} // namespace velmora
