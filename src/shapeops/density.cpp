#include "shapeops/density.h"

#include "runtime/numbers.h"

#include <algorithm>

namespace velmora {

namespace {

using runtime::checked;

constexpr std::int16_t kKeep = -1;
constexpr std::int16_t kRemove = 0;
/// Shifts both ends of a segment away from 0 and back; it changes the last bits of the result.
constexpr double kShift = 1000;

/// The places of the points to go: `step` apart from `first` on.
struct Places {
    std::int32_t first;
    double step;
    double last; ///< number of the last one, from 0

    [[nodiscard]] std::int32_t nth(std::int32_t k, std::int32_t upper) const {
        const std::int32_t place = runtime::to_int32(step * k + first);
        return place > upper ? place - upper - 1 : place;
    }
    /// None is beyond one turn.
    [[nodiscard]] bool fit(std::size_t points) const {
        const double most = 2.0 * static_cast<double>(points) - 1;
        const double ends[] = {static_cast<double>(first), step * last + first};
        return std::ranges::all_of(ends, [most](double place) {
            const double whole = runtime::Round(place, 0);
            return whole >= 0 && whole <= most;
        });
    }
};

/// The outline with every point marked to stay or to go.
Array<Pto> marked_outline(const Array<Pto>& outline, const Places& places) {
    Array<Pto> marked = outline;
    for (Pto& point : marked.all())
        point.Marca = kKeep;
    const std::int32_t upper = marked.upper();
    const std::int32_t last = runtime::to_int32(places.last);
    for (std::int32_t k = 0; k <= last; ++k)
        marked[places.nth(k, upper)].Marca = kRemove;
    return marked;
}

/// What is left; one zeroed record when that is nothing, since the outline is never empty.
Array<Pto> kept_of(const Array<Pto>& marked) {
    Array<Pto> kept;
    for (const Pto& point : marked.all())
        if (point.Marca == kKeep)
            kept.append({point.X, point.Y, point.Sinc, 0});
    if (!kept.dimensioned())
        kept.redim(0);
    return kept;
}

double between(double p, double q, double parts, double k) {
    if (p < q)
        return checked(q - p) / parts * k + p;
    if (p > q)
        return p - checked(p - q) / parts * k;
    return p;
}

/// Fills in the points after place `d` of the outline on the way to point `next`.
void interpolate(Array<Pto>& outline, std::int32_t d, const Pto& next, std::int32_t parts) {
    const Pto& from = outline[d];
    const double px = from.X + kShift;
    const double py = from.Y + kShift;
    const double qx = next.X + kShift;
    const double qy = next.Y + kShift;
    for (std::int32_t k = 1; k < parts; ++k)
        outline[d + k] = {between(px, qx, parts, k) - kShift, between(py, qy, parts, k) - kShift, 0,
                          0};
}

} // namespace

std::optional<Array<Pto>> thinned(const Array<Pto>& outline, std::int32_t first, double count,
                                  double jump) {
    const Places places{.first = first, .step = jump + 1, .last = runtime::Int(count - 1)};
    if (!places.fit(outline.size()))
        return {};
    return kept_of(marked_outline(outline, places));
}

void multiply_points(Array<Pto>& outline, std::int32_t parts) {
    const Array<Pto> backup = outline;
    const std::int32_t upper = backup.upper();
    const double points = static_cast<double>(parts) * static_cast<double>(backup.size());
    outline.redim(runtime::to_int32(points - 1));
    for (std::int32_t i = 0; i <= upper; ++i) {
        outline[i * parts] = backup[i];
        interpolate(outline, i * parts, backup[i == upper ? 0 : i + 1], parts);
    }
}

} // namespace velmora
