// Arcs and circles as runs of straight segments. Lengths are drawing units; points run
// counter-clockwise; each point lets the windows run.
#pragma once

#include "document/feedback.h"
#include "document/forma.h"

#include <cstdint>
#include <span>

namespace velmora {

/// An arc as it is stepped through: point j of 0..count is at start + j steps.
struct ArcRun {
    double centre_x = 0;
    double centre_y = 0;
    double radius = 0;
    double start = 0;       ///< radians
    double sweep = 0;       ///< degrees
    std::int32_t count = 0; ///< segments
};

/// The count + 1 points of an arc, each coordinate through `store`, `step` after each point. Raises
/// 11 for 0 segments (6 without a sweep), 9 for fewer, 6 beyond f64, and what `store` raises.
[[nodiscard]] Array<Pto> flatten(const ArcRun& arc, double (*store)(double),
                                 void (*step)() = DoEvents);

/// A captured arc in PutArc segments; angles in radians. The sweep is a whole number of degrees
/// while the start is not rounded, so that the last point can miss the arc's end, on purpose.
[[nodiscard]] Array<Pto> capture_arc(double centre_x, double centre_y, double radius, double start,
                                     double end);
/// A captured circle in PutCircle segments, from the east round; the last point repeats the first
/// up to rounding.
[[nodiscard]] Array<Pto> capture_circle(double centre_x, double centre_y, double radius);

/// An arc of a DXF file in PutArc segments; angles in degrees.
[[nodiscard]] Array<Pto> dxf_arc(double centre_x, double centre_y, double radius, double start,
                                 double end);
/// A circle of a DXF file in PutCircle segments.
[[nodiscard]] Array<Pto> dxf_circle(double centre_x, double centre_y, double radius);

/// A polyline's first point again as its last.
void close_run(Array<Pto>& points);

} // namespace velmora
