// The floating window `wininfo`: the shape's figures and the counters of a capture, to look at.
#pragma once

#include "ui/side_panel.h"

#include <ui_wininfo.h>

namespace velmora {

class InfoPanel : public SidePanel<Ui::wininfo> {
  public:
    InfoPanel(EventSink& events, SideGround& ground);

    void Load() override;
    void Activate() override;
    void Deactivate() override;

  private:
    void bind();
};

} // namespace velmora
