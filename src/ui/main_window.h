// The main window `Velmora`: menus and tool bars over the coordinate list and the canvas.
#pragma once

#include "ui/canvas_view.h"
#include "ui/command_actions.h"
#include "ui/elided_label.h"
#include "ui/view_marks.h"
#include "ui/window.h"

#include <QMainWindow>
#include <QProgressBar>
#include <ui_velmora.h>

namespace velmora {

class MainWindow : public FormWindow<Ui::Velmora, QMainWindow> {
  public:
    MainWindow(EventSink& events, ShownImage& canvas);

    void Load() override;
    void Activate() override;
    void QueryUnload() override;
    void place() override;
    void status_changed() override;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void add_parts_without_a_look();
    void add_status_bar();
    void add_position();
    void bind();
    void wire();
    void list_in_form_order();
    /// The window with its frame is on the screen, with space beside it where there is some.
    void fit_to_screen();
    /// Where the user had it last, if there is a screen for that.
    [[nodiscard]] bool take_stored_place();
    /// The desktop's frame does not fit: a stored place moves as little as it takes.
    void take_in_the_frame();

    QMainWindow& window_;
    CommandActions commands_;
    ElidedLabel& status_;
    QProgressBar& pbar1_;
    QProgressBar& pbar2_;
    QLabel& position_;
    CanvasView canvas_;
    ViewMarks marks_;
    bool looked_at_ = false;
    bool stored_place_ = false;
};

} // namespace velmora
