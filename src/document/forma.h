// The outline that the program edits: one array of points in cut order, and the compensated one.
#pragma once

#include "runtime/array.h"

#include <cstdint>

namespace velmora {

/// One record of an outline.
struct Pto {
    double X = 0; ///< in the drawing's own units
    double Y = 0;
    std::int16_t Sinc = 0;  ///< 1 = sync point
    std::int16_t Marca = 0; ///< temporary mark of an operation, never in a file

    bool operator==(const Pto&) const = default;
};

/// Same place, to the last bit of both coordinates' values.
inline bool same_place(const Pto& a, const Pto& b) {
    return a.X == b.X && a.Y == b.Y;
}

/// The outline is never empty: without a shape it is one zeroed record. A shape exists from two
/// points on. The closing point is not stored.
struct FormaDocument {
    Array<velmora::Pto> Pto;
    Array<velmora::Pto> Paralela; ///< compensated outline; without dimensions until first made

    FormaDocument() { Pto.redim(0); }
};

extern FormaDocument Forma;

/// The document holds a shape: upper bound of 1 or more. A single point is none, on purpose.
inline bool has_shape() {
    return Forma.Pto.upper() >= 1;
}

} // namespace velmora
