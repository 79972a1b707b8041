// A label that leads out of the program: it looks like a link in the palette's colour.
#pragma once

#include "ui/click_label.h"

namespace velmora {

class LinkLabel : public ClickLabel {
    Q_OBJECT
  public:
    explicit LinkLabel(QWidget* parent = nullptr);

  protected:
    void changeEvent(QEvent* event) override;

  private:
    void take_link_colour();
};

} // namespace velmora
