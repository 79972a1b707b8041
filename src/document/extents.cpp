#include "document/extents.h"

#include "document/feedback.h"
#include "document/forma.h"
#include "document/state/workbench.h"

namespace velmora {

namespace {

constexpr double kMinimumStart = 100000.0;
constexpr double kMaximumStart = 0.0;

/// Goes through the field of all points of the selected array from the start value on, and takes
/// over what `replaces` the running value.
template <class Replaces>
double extent(std::string_view prefix, std::string_view selector, double Pto::*field, double start,
              Replaces replaces) {
    double running = start;
    trap(
        [&] {
            const Array<Pto>* array = array_of(selector);
            if (array == nullptr)
                return;
            (void)array->upper(); // raises 9 where the array has no dimensions
            for (const Pto& point : array->all())
                if (replaces(point.*field, running))
                    running = point.*field;
        },
        [&](const RuntimeError& failure) {
            show_trap(prefix, failure);
            running = 0;
        });
    return running;
}

constexpr auto below = [](double value, double running) {
    return value < running;
};
constexpr auto above = [](double value, double running) {
    return value > running;
};

} // namespace

double GetMinX(std::string_view selector) {
    return extent("Error GetMinX nº: ", selector, &Pto::X, kMinimumStart, below);
}

double GetMaxX(std::string_view selector) {
    return extent("Error GetMaxX nº: ", selector, &Pto::X, kMaximumStart, above);
}

double GetMinY(std::string_view selector) {
    return extent("Error GetMinY nº: ", selector, &Pto::Y, kMinimumStart, below);
}

double GetMaxY(std::string_view selector) {
    return extent("Error GetMaxY nº: ", selector, &Pto::Y, kMaximumStart, above);
}

Extents extents_of(std::string_view selector, const std::array<Bound, 4>& order) {
    Extents extents;
    for (const Bound bound : order) {
        switch (bound) {
        case Bound::min_x:
            extents.min_x = GetMinX(selector);
            break;
        case Bound::max_x:
            extents.max_x = GetMaxX(selector);
            break;
        case Bound::min_y:
            extents.min_y = GetMinY(selector);
            break;
        case Bound::max_y:
            extents.max_y = GetMaxY(selector);
            break;
        }
    }
    return extents;
}

const Array<Pto>* array_of(std::string_view selector) {
    if (selector == "0")
        return &Forma.Pto;
    if (selector == "A")
        return &state::workbench.PtosA;
    if (selector == "B")
        return &state::workbench.PtosB;
    if (selector == "A2")
        return &state::workbench.PtosA2;
    if (selector == "B2")
        return &state::workbench.PtosB2;
    return nullptr;
}

} // namespace velmora
