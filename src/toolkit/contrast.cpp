#include "toolkit/contrast.h"

#include <algorithm>
#include <cmath>

namespace velmora {

namespace {

constexpr int kSteps = 20;

double linear(double channel) {
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& colour) {
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

} // namespace

double contrast(const QColor& one, const QColor& other) {
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

QColor between(const QColor& one, const QColor& other) {
    return QColor((one.red() + other.red()) / 2, (one.green() + other.green()) / 2,
                  (one.blue() + other.blue()) / 2);
}

QColor standing_out(const QColor& colour, const QColor& ground, double least) {
    const QColor full =
        contrast(ground, Qt::white) > contrast(ground, Qt::black) ? Qt::white : Qt::black;
    const float goal = full.lightnessF();
    QColor shown = colour;
    for (int step = 0; step < kSteps && contrast(shown, ground) < least; ++step)
        shown = QColor::fromHslF(std::max(0.0F, shown.hslHueF()), shown.hslSaturationF(),
                                 shown.lightnessF() + (goal - shown.lightnessF()) / 4);
    return contrast(shown, ground) < least ? full : shown;
}

} // namespace velmora
