#include "generators/figures.h"

#include "cad/flatten.h"
#include "document/number_text.h"

#include <array>

namespace velmora::figures {

namespace {

constexpr std::int16_t kSync = 1;
constexpr auto kSquare =
    std::to_array<Pto>({{0, 0, kSync, 0}, {1, 0, 0, 0}, {1, 1, 0, 0}, {0, 1, 0, 0}});
constexpr auto kTriangle = std::to_array<Pto>({{0, 0, kSync, 0}, {1, 0, 0, 0}, {1, 1, 0, 0}});

} // namespace

std::span<const Pto> square() {
    return kSquare;
}

std::span<const Pto> triangle() {
    return kTriangle;
}

Array<Pto> circle(std::int32_t points) {
    Array<Pto> run = flatten({0.5, 0.5, 0.5, 0, 360, points}, Normaliza15);
    run[0].Sinc = kSync;
    run.redim_keep(points - 1); // the run ends where it began
    return run;
}

} // namespace velmora::figures
