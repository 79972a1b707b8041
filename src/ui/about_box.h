// The window `acerca`: version, thanks and links.
#pragma once

#include "ui/window.h"

#include <ui_acerca.h>

namespace velmora {

class AboutBox : public FormWindow<Ui::acerca> {
  public:
    explicit AboutBox(EventSink& events);

    void Load() override;
    void Activate() override;

  private:
    void bind();
    void wire();
};

} // namespace velmora
