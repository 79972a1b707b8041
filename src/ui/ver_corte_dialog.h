// The dialog `ver_corte`: the two sides of a cut in one picture, the wire on its way in another,
// what to look at, and what goes out to other machines.
#pragma once

#include "document/windows/ver_corte.h"
#include "ui/cut_pic.h"
#include "ui/window.h"

#include <QElapsedTimer>
#include <QTimer>
#include <ui_ver_corte.h>

namespace velmora {

class VerCorteDialog : public FormWindow<Ui::ver_corte> {
  public:
    explicit VerCorteDialog(EventSink& events);

    void Load() override;
    void Unload() override;
    void place() override;

  private:
    void bind();
    void bind_pictures();
    void bind_wire();
    void wire();
    void wire_pictures();
    void wire_output();
    void play_or_stop(bool playing);
    void show_mark();

    QTimer& timer_;       ///< runs while the wire is on its way, and at no other time
    QElapsedTimer since_; ///< the last tick
    std::uint64_t pictures_ = 0;
};

} // namespace velmora
