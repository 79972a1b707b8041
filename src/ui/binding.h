// Ties the widgets of a window to the fields of its struct. A field goes into its widget when it
// changed since it was last shown; a widget's value comes back only where the user changed it, so
// that what a running handler wrote is never lost to an older text on the screen.
#pragma once

#include "document/windows/velmora.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

class QAbstractButton;
class QAction;
class QComboBox;
class QLabel;
class QLineEdit;
class QProgressBar;
class QWidget;

namespace velmora {

class Bindings {
  public:
    void text(QLineEdit& box, std::string& field);
    void title(QWidget& window, std::string& field);
    void label(QLabel& label, std::string& field);
    void check(QAbstractButton& button, bool& field);
    /// The chosen entry of a list that takes no other text.
    void choice(QComboBox& list, std::string& field);
    void progress(QProgressBar& bar, const ProgressBar& field);
    void enabled(QWidget& widget, const bool& field);
    void visible(QWidget& widget, const bool& field);
    /// Anything else that only shows: `write` gets the value whenever it differs from the one shown
    /// last. `read` must be cheap, it is asked at each push.
    template <class Value>
    void shows(std::function<Value()> read, std::function<void(const Value&)> write);

    /// Called at each push; for what finds out itself what changed, cheaply.
    void each_push(std::function<void()> push);
    /// Called at each pull; for what the window alone knows.
    void each_pull(std::function<void()> pull);

    /// Widgets that the user changed into their fields.
    void pull();
    /// Fields that changed into their widgets.
    void push();

  private:
    struct Tie {
        std::function<void()> pull; ///< empty where the user changes nothing
        std::function<void()> push; ///< empty where nothing shows
    };

    /// Both directions. `in_widget` and `into_widget` are the widget's side.
    template <class Value>
    void tie(Value& field, std::function<Value()> in_widget,
             std::function<void(const Value&)> into_widget);

    std::vector<Tie> ties_;
};

template <class Value>
void Bindings::shows(std::function<Value()> read, std::function<void(const Value&)> write) {
    auto push = [read = std::move(read), write = std::move(write),
                 shown = std::optional<Value>()]() mutable {
        Value now = read();
        if (shown == now)
            return;
        shown = std::move(now);
        write(*shown);
    };
    ties_.push_back({{}, std::move(push)});
}

} // namespace velmora
