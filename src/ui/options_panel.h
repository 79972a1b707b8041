// The floating window `winoptions`: the working parameters of the session.
#pragma once

#include "ui/side_panel.h"

#include <ui_winoptions.h>

namespace velmora {

class OptionsPanel : public SidePanel<Ui::winoptions> {
  public:
    OptionsPanel(EventSink& events, SideGround& ground);

    void Load() override;
    void Activate() override;
    void Deactivate() override;

  private:
    void bind();
    void wire();
};

} // namespace velmora
