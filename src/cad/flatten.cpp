#include "cad/flatten.h"

#include "cad/entity_counters.h"
#include "document/forma.h"
#include "document/number_text.h"
#include "document/state/options.h"
#include "document/state/program.h"
#include "runtime/numbers.h"

#include <cmath>

namespace velmora {

namespace {

double degrees(double radians) {
    return 180 / state::program.PI * radians;
}

double radians(double degrees_of_angle) {
    return state::program.PI / 180 * degrees_of_angle;
}

/// The sweep from start to end, both in degrees; it never runs clockwise.
double sweep_between(double start, double end) {
    const double sweep = end - start;
    return sweep < 0 ? sweep + 360 : sweep;
}

std::int32_t whole_degrees(double angle_in_radians) {
    return runtime::to_int32(degrees(angle_in_radians)) % 360;
}

/// A captured radius comes in as text.
double captured_radius(double radius) {
    std::string text = CStr(radius);
    return CadenaAReal(text);
}

/// A DXF file's points pass through text once more before they are normalised.
double store_of_dxf(double value) {
    return Normaliza15(CDbl(CStr(value)));
}

Array<Pto> capture(const ArcRun& arc) {
    start_entity_progress(arc.count + 1.0);
    return flatten(arc, Normaliza15, step_entity_progress);
}

double full_circle() {
    return degrees(2 * state::program.PI);
}

} // namespace

Array<Pto> flatten(const ArcRun& arc, double (*store)(double), void (*step)()) {
    Array<Pto> points;
    points.redim(arc.count);
    const double angle_step = radians(runtime::divide(arc.sweep, arc.count));
    for (std::int32_t j = 0; j <= arc.count; ++j) {
        const double angle = j * angle_step + arc.start;
        points[j].X = store(runtime::checked(std::cos(angle) * arc.radius + arc.centre_x));
        points[j].Y = store(runtime::checked(std::sin(angle) * arc.radius + arc.centre_y));
        step();
    }
    return points;
}

Array<Pto> capture_arc(double centre_x, double centre_y, double radius, double start, double end) {
    const double sweep = sweep_between(whole_degrees(start), whole_degrees(end));
    return capture(
        {centre_x, centre_y, captured_radius(radius), start, sweep, state::options.PutArc});
}

Array<Pto> capture_circle(double centre_x, double centre_y, double radius) {
    return capture(
        {centre_x, centre_y, captured_radius(radius), 0, full_circle(), state::options.PutCircle});
}

Array<Pto> dxf_arc(double centre_x, double centre_y, double radius, double start, double end) {
    return flatten({centre_x, centre_y, radius, radians(start), sweep_between(start, end),
                    state::options.PutArc},
                   store_of_dxf);
}

Array<Pto> dxf_circle(double centre_x, double centre_y, double radius) {
    return flatten({centre_x, centre_y, radius, 0, full_circle(), state::options.PutCircle},
                   store_of_dxf);
}

void close_run(Array<Pto>& points) {
    points.append(Pto(points[0]));
}

} // namespace velmora
