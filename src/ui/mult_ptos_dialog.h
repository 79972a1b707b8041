// The dialog `Mult_Ptos`: multiplies the points of the shape.
#pragma once

#include "ui/window.h"

#include <ui_mult_ptos.h>

namespace velmora {

class MultPtosDialog : public FormWindow<Ui::Mult_Ptos> {
  public:
    explicit MultPtosDialog(EventSink& events);

    void Load() override;

  private:
    void bind();
    void wire();
};

} // namespace velmora
