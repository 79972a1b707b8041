// The dialog `setup`: stored values, language, sound and colours, with a sample.
#pragma once

#include "ui/window.h"

#include <ui_setup.h>

namespace velmora {

class SetupDialog : public FormWindow<Ui::setup> {
  public:
    explicit SetupDialog(EventSink& events);

    void Load() override;
    void Activate() override;

  private:
    void bind();
    void wire();
    void bind_colours();
    void wire_boxes();
};

} // namespace velmora
