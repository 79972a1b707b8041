// The start window: name, version and a picture, for five seconds or until it is clicked.
#pragma once

#include "ui/window.h"

#include <QWidget>
#include <ui_intro.h>

class QTimer;

namespace velmora {

class IntroScreen : public FormWindow<Ui::intro, QWidget> {
  public:
    explicit IntroScreen(WindowHost& windows);

    void Load() override;

  private:
    void draw_texts();
    /// The main window takes over.
    void leave();

    QTimer& timer_;
};

} // namespace velmora
