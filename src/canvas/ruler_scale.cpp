#include "canvas/ruler_scale.h"

#include "document/number_text.h"
#include "runtime/numbers.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace velmora {

namespace {

constexpr double kApart = 60;
constexpr int kMostDecimals = 22;

struct Leading {
    int digit;
    int parts;
};

constexpr Leading kLeading[] = {{1, 5}, {2, 4}, {5, 5}, {10, 5}};

} // namespace

RulerScale ruler_scale(double zoom) {
    const double least = kApart / zoom;
    const int exponent = static_cast<int>(std::floor(std::log10(least)));
    const double decade = std::pow(10.0, exponent);
    for (const auto& [digit, parts] : kLeading)
        if (const double step = digit * decade; step >= least * (1 - 1e-12))
            return {step, parts, std::clamp(-exponent, 0, kMostDecimals)};
    return {10 * decade, 5, std::clamp(-exponent, 0, kMostDecimals)};
}

std::vector<RulerMark> ruler_marks(double zoom, double origin, double length, int direction) {
    const RulerScale scale = ruler_scale(zoom);
    const double part = scale.step * zoom / scale.parts; // pixels
    std::vector<RulerMark> marks;
    const auto first = static_cast<std::int64_t>(std::ceil(-origin / part));
    const auto last = static_cast<std::int64_t>(std::floor((length - origin) / part));
    for (std::int64_t i = first; i <= last; ++i) {
        RulerMark mark{origin + static_cast<double>(i) * part, {}};
        if (i % scale.parts == 0) {
            const double number = scale.step * static_cast<double>(direction * (i / scale.parts));
            mark.label = CStr(runtime::Round(number, scale.decimals));
        }
        marks.push_back(std::move(mark));
    }
    return marks;
}

} // namespace velmora
