// The window `teclas`: the shortcut keys in words.
#pragma once

#include "ui/window.h"

#include <ui_teclas.h>

namespace velmora {

class ShortcutList : public FormWindow<Ui::teclas> {
  public:
    explicit ShortcutList(EventSink& events);

    void Load() override;
};

} // namespace velmora
