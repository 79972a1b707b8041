#include "ui/binding.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QRadioButton>
#include <QSignalBlocker>
#include <cmath>
#include <limits>
#include <utility>

namespace velmora {

namespace {

void set_checked(QAbstractButton& button, bool checked) {
    const QSignalBlocker quiet(button);
    // An exclusive button cannot be cleared while it is the only one chosen.
    const bool exclusive = button.autoExclusive();
    button.setAutoExclusive(false);
    button.setChecked(checked);
    button.setAutoExclusive(exclusive);
}

int bar_value(double value) {
    constexpr double most = std::numeric_limits<int>::max();
    return std::isnan(value) ? 0 : static_cast<int>(std::clamp(value, -most, most));
}

void show_progress(QProgressBar& bar, const ProgressBar& state) {
    // A range without a length would show as a bar that is busy for ever.
    const bool empty = !(state.Max > state.Min);
    bar.setRange(bar_value(state.Min), empty ? bar_value(state.Min) + 1 : bar_value(state.Max));
    bar.setValue(bar_value(empty ? state.Min : state.Value));
}

} // namespace

template <class Value>
void Bindings::tie(Value& field, std::function<Value()> in_widget,
                   std::function<void(const Value&)> into_widget) {
    struct State {
        std::optional<Value> shown; ///< the field as last shown
        Value in_widget;            ///< what the widget made of it
    };
    auto state = std::make_shared<State>(State{{}, in_widget()});
    auto pull = [&field, state, in_widget] {
        Value now = in_widget();
        if (now == state->in_widget)
            return;
        state->in_widget = now;
        state->shown = now;
        field = std::move(now);
    };
    auto push = [&field, state, in_widget, write = std::move(into_widget)] {
        if (state->shown == field)
            return;
        state->shown = field;
        write(field);
        state->in_widget = in_widget();
    };
    ties_.push_back({std::move(pull), std::move(push)});
}

void Bindings::text(QLineEdit& box, std::string& field) {
    tie<std::string>(
        field, [&box] { return box.text().toStdString(); },
        [&box](const std::string& text) {
            const QSignalBlocker quiet(box);
            box.setText(QString::fromStdString(text));
        });
}

void Bindings::title(QWidget& window, std::string& field) {
    tie<std::string>(
        field, [&window] { return window.windowTitle().toStdString(); },
        [&window](const std::string& text) {
            window.setWindowTitle(QString::fromStdString(text));
        });
}

void Bindings::label(QLabel& label, std::string& field) {
    tie<std::string>(
        field, [&label] { return label.text().toStdString(); },
        [&label](const std::string& text) { label.setText(QString::fromStdString(text)); });
}

void Bindings::check(QAbstractButton& button, bool& field) {
    tie<bool>(
        field, [&button] { return button.isChecked(); },
        [&button](bool checked) { set_checked(button, checked); });
}

void Bindings::choice(QComboBox& list, std::string& field) {
    tie<std::string>(
        field, [&list] { return list.currentText().toStdString(); },
        [&list](const std::string& entry) {
            const QSignalBlocker quiet(list);
            list.setCurrentIndex(list.findText(QString::fromStdString(entry)));
        });
}

void Bindings::progress(QProgressBar& bar, const ProgressBar& field) {
    using Values = std::array<double, 3>;
    shows<Values>(
        [&field] {
            return Values{field.Min, field.Max, field.Value};
        },
        [&bar](const Values& values) {
            show_progress(bar, {values[0], values[1], values[2]});
        });
}

void Bindings::enabled(QWidget& widget, const bool& field) {
    shows<bool>([&field] { return field; }, [&widget](bool on) { widget.setEnabled(on); });
}

void Bindings::visible(QWidget& widget, const bool& field) {
    shows<bool>([&field] { return field; }, [&widget](bool on) { widget.setVisible(on); });
}

void Bindings::each_push(std::function<void()> push) {
    ties_.push_back({{}, std::move(push)});
}

void Bindings::each_pull(std::function<void()> pull) {
    ties_.push_back({std::move(pull), {}});
}

void Bindings::pull() {
    for (const Tie& tie : ties_)
        if (tie.pull)
            tie.pull();
}

void Bindings::push() {
    for (const Tie& tie : ties_)
        if (tie.push)
            tie.push();
}

} // namespace velmora
