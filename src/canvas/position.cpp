#include "canvas/position.h"

#include "canvas/view.h"
#include "document/number_text.h"
#include "document/state/view.h"
#include "runtime/numbers.h"

#include <algorithm>
#include <cmath>

namespace velmora {

namespace {

constexpr int kMostDecimals = 15;

int decimals_of(double zoom) {
    return std::clamp(static_cast<int>(std::ceil(std::log10(zoom))), 0, kMostDecimals);
}

} // namespace

std::string position_text(Spot pixel) {
    const double zoom = state::view.ZoomFactor;
    if (!picture_shown() || !(zoom > 0))
        return {};
    const Spot origin = origin_seen();
    const auto text = [decimals = decimals_of(zoom)](double value) {
        return CStr(runtime::Round(value, decimals));
    };
    return "X " + text((pixel.x - origin.x) / zoom) + "  Y " + text((origin.y - pixel.y) / zoom);
}

} // namespace velmora
