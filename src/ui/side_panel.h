// What the two floating windows share: they roll up, and follow the main window.
#pragma once

#include "ui/roll_up.h"
#include "ui/side_ground.h"
#include "ui/window.h"

#include <QEvent>
#include <utility>

namespace velmora {

template <class Ui>
class SidePanel : public FormWindow<Ui, QWidget> {
  public:
    /// Shown again, a window keeps the place where the user put it, until a resize of the main
    /// window moves it.
    void place() override {
        const auto kept = ground_.places.find(this->name());
        const QWidget* main = ground_.main_window();
        at_users_place_ =
            kept != ground_.places.end() && main != nullptr && kept->second.main == main->size();
        if (at_users_place_)
            this->widget().move(kept->second.place);
        else
            keep_to_main();
    }

    /// It is shown beside the work; the main window keeps the keyboard until the user comes to it.
    bool takes_focus() const override { return false; }

    void Unload() override {
        const QWidget* main = ground_.main_window();
        if (looked_at_ && main != nullptr)
            ground_.places[this->name()] = {this->widget().pos(), main->size()};
    }

  protected:
    /// `row` is the window's place below the main window's top, in twips.
    SidePanel(EventSink& events, SideGround& ground, int row)
        : FormWindow<Ui, QWidget>(events), ground_(ground),
          roll_up_(this->widget(), *this->ui.content), row_(row) {
        this->widget().setWindowFlags(Qt::Tool);
        if (QWidget* main = ground_.main_window())
            main->installEventFilter(this);
    }

    void bind_height(std::function<int()> height, const bool& rolled_up) {
        this->bindings().template shows<int>(std::move(height), [this, &rolled_up](int twips) {
            roll_up_.set_height(twips, rolled_up);
        });
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (watched == &this->widget() ? is_first_look(*event) : event->type() == QEvent::Resize)
            keep_to_main();
        return Window::eventFilter(watched, event);
    }

  private:
    /// What was rolled up before the desktop put its frame around it is off by the frame, which is
    /// known when the window is painted.
    bool is_first_look(const QEvent& event) {
        return event.type() == QEvent::Paint && !std::exchange(looked_at_, true) &&
               !at_users_place_;
    }

    void keep_to_main() {
        const QWidget* main = ground_.main_window();
        if (main != nullptr && !main->isMinimized())
            roll_up_.keep_to(*main, row_);
    }

    SideGround& ground_;
    RollUp roll_up_;
    int row_;
    bool looked_at_ = false;
    bool at_users_place_ = false;
};

} // namespace velmora
