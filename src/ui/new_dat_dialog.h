// The dialog `New_Dat`: a new shape from a figure, or from a point to draw on from.
#pragma once

#include "ui/window.h"

#include <ui_new_dat.h>

namespace velmora {

class NewDatDialog : public FormWindow<Ui::New_Dat> {
  public:
    explicit NewDatDialog(EventSink& events);

    void Load() override;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void bind();
    void wire();
    void draw_tiles();
};

} // namespace velmora
