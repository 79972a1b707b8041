// The dialog `Compensa`: makes the outline beside the shape that makes up for the cut.
#pragma once

#include "ui/window.h"

#include <ui_compensa.h>

namespace velmora {

class CompensaDialog : public FormWindow<Ui::Compensa> {
  public:
    explicit CompensaDialog(EventSink& events);

    void Load() override;

  private:
    void bind();
    void wire();
};

} // namespace velmora
