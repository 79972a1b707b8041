// The last step of the adjustment: each pair of points is carried outward along its line.
#pragma once

#include "document/forma.h"

namespace velmora {

struct Distances {
    double X = 0; ///< how far side A is carried
    double Y = 0; ///< side B
    double Z = 0; ///< between the sides
};

struct TwoSides {
    Array<Pto> A, B;
};

/// Both sides with X and Y of each point at the distances. The factor is (Z + X) / Z, on purpose.
/// Raises 11 or 6 for Z of 0, 9 when B is the shorter one.
[[nodiscard]] TwoSides projected(const Array<Pto>& A, const Array<Pto>& B, const Distances& to);

} // namespace velmora
