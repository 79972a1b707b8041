// The dialog `importar`: files of other programs, chosen or dropped, become the shape.
#pragma once

#include "document/windows/importar.h"
#include "ui/window.h"

#include <ui_importar.h>

namespace velmora {

class ImportarDialog : public FormWindow<Ui::importar> {
  public:
    explicit ImportarDialog(EventSink& events);

    void Load() override;
    void place() override;

  private:
    void bind();
    void bind_box(QLineEdit& box, ImportarBox& text);
    void bind_chains();
    void wire();
};

} // namespace velmora
