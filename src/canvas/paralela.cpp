#include "canvas/paralela.h"

#include "canvas/view.h"
#include "document/forma.h"
#include "document/state/view.h"
#include "runtime/numbers.h"

#include <cmath>
#include <cstdlib>

namespace velmora {

namespace {

/// How far from halfway between two pixels a sum must lie, as a share of its terms, for neither the
/// 15 digits nor the addition to reach it.
constexpr double kDigits15 = 1e-14;

bool is_clear_of_ties(double sum, double size) {
    return std::abs(std::abs(sum - std::nearbyint(sum)) - 0.5) > kDigits15 * size;
}

/// The sum of two decimals as a pixel. A sum that only looks like a tie, because f64 has no room
/// for its last digits, goes where those digits point.
std::int32_t exact_pixel(double a, double b) {
    const double sum = a + b;
    const double b_taken = sum - a;
    const double left_over = (a - (sum - b_taken)) + (b - b_taken);
    const bool tie = std::abs(sum - std::trunc(sum)) == 0.5;
    if (!tie || left_over == 0)
        return to_pixel(sum);
    return to_pixel(left_over > 0 ? sum + 0.5 : sum - 0.5);
}

std::int32_t pixel_of_decimals(double product, double origin) {
    const double sum = product + origin;
    if (is_clear_of_ties(sum, std::abs(product) + std::abs(origin)))
        return to_pixel(sum);
    return exact_pixel(runtime::normalized_15(runtime::checked(product)), origin);
}

} // namespace

PixelPoint paralela_pixel(const Pto& point) {
    return {pixel_of_decimals(state::view.ZoomFactor * point.X, state::view.CanvasX0),
            pixel_of_decimals(-(state::view.ZoomFactor * point.Y), state::view.CanvasY0)};
}

} // namespace velmora
