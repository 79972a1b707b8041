// An image on its way to a window: whoever draws it says what changed, the window shows it.
#pragma once

#include <QImage>
#include <QRect>
#include <functional>

namespace velmora {

class ShownImage {
  public:
    virtual ~ShownImage() = default;
    /// The living pixels; they stay in their place.
    [[nodiscard]] virtual const QImage& image() const = 0;

    /// Called with what changed, so that a window repaints no more than that; may be empty.
    std::function<void(const QRect& changed)> changed;
};

} // namespace velmora
