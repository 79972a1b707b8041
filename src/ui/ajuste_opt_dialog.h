// The dialog `ajuste_opt`: the three distances of the adjustment, beside a drawing of them.
#pragma once

#include "ui/window.h"

#include <ui_ajuste_opt.h>

namespace velmora {

class AjusteOptDialog : public FormWindow<Ui::ajuste_opt> {
  public:
    explicit AjusteOptDialog(EventSink& events);

    void Load() override;

  private:
    void bind();
    void wire();
};

} // namespace velmora
