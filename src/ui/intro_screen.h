// The start window: name, version and a picture, for five seconds or until it is clicked.
#pragma once

#include "ui/window.h"

#include <QWidget>
#include <ui_intro.h>

class QTimer;

namespace velmora {

class IntroScreen : public FormWindow<Ui::intro, QWidget> {
  public:
    /// Loads a window without showing it. Part of a handler.
    using LoadWindow = std::function<void(std::string_view window)>;

    IntroScreen(EventSink& events, LoadWindow load);

    void Load() override;

  private:
    void draw_texts();
    /// The main window takes over.
    void leave();

    LoadWindow load_;
    QTimer& timer_;
};

} // namespace velmora
