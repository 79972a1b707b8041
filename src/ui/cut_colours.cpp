#include "ui/cut_colours.h"

#include "toolkit/contrast.h"

#include <QPalette>

namespace velmora {

namespace {

constexpr double kLine = 4.5; // of what has to be told apart, by the rules for readable screens
constexpr double kBroad = 3;

} // namespace

QColor mixed(const QColor& one, const QColor& other, double share) {
    const auto part = [share](int from, int to) {
        return static_cast<int>(from + (to - from) * share);
    };
    return {part(one.red(), other.red()), part(one.green(), other.green()),
            part(one.blue(), other.blue())};
}

CutColours cut_colours(const QPalette& palette) {
    CutColours colours;
    colours.ground = palette.color(QPalette::Base);
    colours.text = palette.color(QPalette::Text);
    const QColor& ground = colours.ground;
    colours.faint = mixed(ground, colours.text, 0.45);
    colours.side_A = standing_out(QColor("#1c66c9"), ground, kLine);
    colours.side_B = standing_out(QColor("#c8451b"), ground, kLine);
    colours.run = mixed(ground, QColor("#5f8f86"), 0.75);
    colours.other_run = mixed(ground, QColor("#a08cc4"), 0.75);
    colours.cut = mixed(ground, QColor("#e0a23c"), 0.85);
    colours.other_cut = mixed(ground, QColor("#c98a5a"), 0.85);
    colours.foam = mixed(ground, QColor("#7fa9d6"), 0.5);
    colours.wire = colours.text;
    colours.mark = standing_out(QColor("#d4148c"), ground, kBroad);
    return colours;
}

} // namespace velmora
