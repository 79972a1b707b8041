// What a text looks like: the outlines of its letters as figures of straight segments.
#pragma once

#include "platform/dialogs.h"

#include <string_view>
#include <vector>

namespace velmora {

/// A place in pixels, y growing downward.
struct OutlinePoint {
    double x = 0;
    double y = 0;
    bool operator==(const OutlinePoint&) const = default;
};

/// One closed run of an outline, in the font's own order. A repeated first point at its end counts
/// once.
using Figure = std::vector<OutlinePoint>;

class TextOutlines {
  public:
    virtual ~TextOutlines() = default;
    /// The figures of `text` (UTF-8) with its upper left corner at `corner`, from left to right as
    /// it is read on the screen, curves as segments. A letter that the font lacks comes from
    /// another font, or as the box that stands for it; blanks have no figures.
    [[nodiscard]] virtual std::vector<Figure> figures(std::string_view text, const FontChoice& font,
                                                      OutlinePoint corner) = 0;
};

} // namespace velmora
