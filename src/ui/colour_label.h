// A label that shows a colour and can be clicked to pick another.
#pragma once

#include "ui/click_label.h"

#include <cstdint>

namespace velmora {

class ColourLabel : public ClickLabel {
    Q_OBJECT
  public:
    explicit ColourLabel(QWidget* parent = nullptr);
    /// A colour as the settings hold it.
    void show_colour(std::uint32_t colour);
    [[nodiscard]] QSize sizeHint() const override;
};

} // namespace velmora
