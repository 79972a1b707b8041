#include "ui/colour_label.h"

#include "canvas/colours.h"

namespace velmora {

ColourLabel::ColourLabel(QWidget* parent) : ClickLabel(parent) {
    setFrameStyle(QFrame::Box | QFrame::Plain);
    setAutoFillBackground(true);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void ColourLabel::show_colour(std::uint32_t colour) {
    QPalette own = palette();
    own.setColor(QPalette::Window, QColor::fromRgb(screen_rgb(colour)));
    setPalette(own);
}

QSize ColourLabel::sizeHint() const {
    const int height = fontMetrics().height() + 2 * frameWidth();
    return {2 * height, height};
}

} // namespace velmora
