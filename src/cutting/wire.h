// The wire on its way: where it is at both faces of the block and at both towers, how long the ways
// are, and how long the cut takes.
#pragma once

#include "cutprep/projection.h"
#include "cutting/sides.h"

#include <array>
#include <cstddef>
#include <vector>

namespace velmora::cutting {

/// The four planes that the wire goes through, in the order of depth.
enum class Plane : unsigned char { tower_A, face_A, face_B, tower_B };
inline constexpr std::size_t planes = 4;

/// What a value per plane is kept in; `[index(Plane::face_A)]`.
template <class T>
using PerPlane = std::array<T, planes>;
[[nodiscard]] constexpr std::size_t index(Plane plane) {
    return static_cast<std::size_t>(plane);
}

enum class WireFault : unsigned char {
    none,
    unequal_counts, ///< the sides are not paired point by point
    too_few_points,
    no_distance,   ///< the distance between the sides is 0, or carries the towers onto one another
    beyond_numbers ///< a coordinate is, or becomes, larger than 1e15
};

struct Wire {
    WireFault fault = WireFault::none; ///< with one all else is empty
    bool closed = true;
    /// The points at each plane, equally many. Where `closed` the first one stands again at the
    /// end.
    PerPlane<std::vector<Point>> points = {};
    /// Depth of the planes in millimetres, side A at 0, side B at the distance between the sides.
    /// The towers stand where a straight wire through both faces has the places that the adjustment
    /// gives it: Z + X before A, Z + Y behind B.
    PerPlane<double> depth = {};
    /// At each point the way up to it: the sum of the longer of the two steps at the faces.
    std::vector<double> along = {};

    [[nodiscard]] double length() const { return along.empty() ? 0 : along.back(); }
    [[nodiscard]] std::size_t size() const { return along.size(); }
};

/// Sides at the faces, carried to the towers by the formula of the adjustment (`projected`).
[[nodiscard]] Wire wire_of_faces(const Sides& faces, const Distances& distances);
/// Sides that were carried to the towers already, as the adjustment leaves and saves them: the
/// faces are found backwards, to nine decimals.
[[nodiscard]] Wire wire_of_towers(const Sides& towers, const Distances& distances);
/// Without the machine's distances: the faces are at the towers, `between` apart.
[[nodiscard]] Wire wire_of_roads(const Sides& roads, double between = 0);

/// The outlines at the faces, as the foam sees them, with the sync points of the sides that the
/// wire was made of. What a file of the towers' places loses is seen on those sides alone.
[[nodiscard]] Sides sides_at_faces(const Wire& wire, const Sides& made_of);

/// A place of the wire on its way.
struct WirePlace {
    std::size_t step = 0; ///< from this point to the next
    double part = 0;      ///< of that step, 0 to 1
    PerPlane<Point> at = {};
};

/// At a length of `along`, held within the way; by halving. An empty wire gives an empty place.
[[nodiscard]] WirePlace place_at(const Wire& wire, double along);

struct WireNumbers {
    PerPlane<double> lengths = {};
    PerPlane<Box> extents = {};
    Box towers = {}; ///< of both towers together
};

[[nodiscard]] WireNumbers numbers_of(const Wire& wire);

/// Minutes of the cut when the longer of the two ways at the faces is cut at a speed in mm a
/// minute; 0 for a speed that isn't positive.
[[nodiscard]] double minutes_at(const Wire& wire, double speed);

/// Whether both towers together stay within a travel of so many millimetres; what is 0 or less
/// counts as no limit. `over` is by how much it is passed, 0 where it fits.
struct Fit {
    double over_X = 0;
    double over_Y = 0;
    [[nodiscard]] bool fits() const { return over_X <= 0 && over_Y <= 0; }
};
[[nodiscard]] Fit fit_of(const WireNumbers& numbers, double travel_X, double travel_Y);

} // namespace velmora::cutting
