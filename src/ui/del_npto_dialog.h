// The dialog `del_Npto`: takes points out of the shape at a regular interval.
#pragma once

#include "ui/window.h"

#include <ui_del_npto.h>

namespace velmora {

class DelNptoDialog : public FormWindow<Ui::del_Npto> {
  public:
    explicit DelNptoDialog(EventSink& events);

    void Load() override;

  private:
    void bind();
    void wire();
};

} // namespace velmora
