// The workbench `ajuste`: two sides made to match point for point, each with two small pictures.
#pragma once

#include "cutprep/preview_surface.h"
#include "ui/window.h"

#include <ui_ajuste.h>

namespace velmora {

class AjusteDialog : public FormWindow<Ui::ajuste>, private Previews {
  public:
    explicit AjusteDialog(EventSink& events);
    ~AjusteDialog() override;

    void Load() override;
    void Activate() override;
    void Unload() override;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    [[nodiscard]] PreviewSurface& picture(PreviewPicture which) override;
    /// The pictures are to be drawn on, or no longer.
    void offer_pictures();
    void withdraw_pictures();

    void bind_sides();
    void bind_results();
    void bind_status();
    void wire();
    /// A click while a command of the window is still at work is ignored: that command yields to
    /// the windows, and a second one would disturb it.
    void on_idle_click(QAbstractButton& button, void (*handler)());
};

} // namespace velmora
