// How well one colour is told from another, and a colour that is told from its ground.
#pragma once

#include <QColor>

namespace velmora {

/// From 1, the same, to 21, black on white: the ratio of the rules for readable screens.
[[nodiscard]] double contrast(const QColor& one, const QColor& other);

/// Halfway from one colour to the other.
[[nodiscard]] QColor between(const QColor& one, const QColor& other);

/// The colour in its own hue, lighter or darker as far as it takes to stand out from the ground.
[[nodiscard]] QColor standing_out(const QColor& colour, const QColor& ground, double least);

} // namespace velmora
