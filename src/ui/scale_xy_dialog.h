// The dialog `Scale_xy`: scales the shape to a size or by percentages, and stays open for more.
#pragma once

#include "ui/window.h"

#include <ui_scale_xy.h>

namespace velmora {

class ScaleXyDialog : public FormWindow<Ui::Scale_xy> {
  public:
    explicit ScaleXyDialog(EventSink& events);

    void Load() override;

  private:
    void bind();
    void wire();
};

} // namespace velmora
