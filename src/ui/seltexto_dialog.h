// The dialog `seltexto`: a typed text becomes the shape.
#pragma once

#include "ui/window.h"

#include <ui_seltexto.h>

namespace velmora {

class SeltextoDialog : public FormWindow<Ui::seltexto> {
  public:
    explicit SeltextoDialog(EventSink& events);

    void Load() override;

  private:
    void bind();
    void wire();
};

} // namespace velmora
