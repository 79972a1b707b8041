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

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void bind();
    /// The boxes lie on the window's colour, as what only shows does.
    void colour_boxes();
};

} // namespace velmora
