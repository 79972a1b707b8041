// The colours of the pictures of a cut, told from the ground of the theme in use.
#pragma once

#include <QColor>

class QPalette;

namespace velmora {

struct CutColours {
    QColor ground, text, faint;
    QColor side_A, side_B;
    QColor run, other_run; ///< of the joined lines, by turns
    QColor cut, other_cut; ///< what has been cut, by turns
    QColor foam;
    QColor wire, mark;
};

[[nodiscard]] CutColours cut_colours(const QPalette& palette);

/// So much of the other colour, 0 to 1.
[[nodiscard]] QColor mixed(const QColor& one, const QColor& other, double share);

} // namespace velmora
