// A window of the program: a top-level widget with its controls, its bindings, how the literals see
// it, and one method for each event of its life. A window is added with a form (.ui), a class
// derived from FormWindow, and a line in window_registry.cpp.
#pragma once

#include "document/windows/choice_list.h"
#include "ui/binding.h"
#include "ui/event_sink.h"
#include "ui/form_adapter.h"
#include "ui/form_dialog.h"

#include <QObject>
#include <QSize>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

class QAbstractButton;
class QComboBox;
class QLineEdit;

namespace velmora {

class Window : public QObject {
    Q_OBJECT
  public:
    using Handler = std::function<void()>;

    Window(EventSink& events, std::unique_ptr<QWidget> widget);
    ~Window() override;

    [[nodiscard]] QWidget& widget() const { return *widget_; }
    [[nodiscard]] std::string name() const;
    /// "Txt_zoom", "Picture1(2)"; nullptr when there is none.
    [[nodiscard]] QObject* control(std::string_view name) const;
    [[nodiscard]] WidgetForm& form() { return form_; }
    [[nodiscard]] Bindings& bindings() { return bindings_; }

    // The life of a window. They run inside the event or handler that causes them.
    virtual void Load() {}
    virtual void Activate() {}
    virtual void Deactivate() {}
    /// The close box was used; the window is unloaded afterwards.
    virtual void QueryUnload() {}
    virtual void Unload() {}
    /// The desktop's focus comes to the window with the program's activation.
    [[nodiscard]] virtual bool takes_focus() const { return true; }
    /// Takes its place on the screen before it is shown the first time.
    virtual void place();
    /// The window is unloaded: its controls send it nothing any more.
    void retire();
    /// Shows what cannot wait until the windows get time.
    virtual void status_changed() {}

  protected:
    /// Ends the construction: the names of the controls in the form's own order.
    void list_controls(const std::vector<std::string>& names);
    [[nodiscard]] EventSink& events() const { return events_; }

    void bind_list(QComboBox& box, ChoiceList& list);
    /// Takes the middle of the screen, as large as it has room for up to this size: for a window
    /// with pictures.
    void place_in_middle(QSize at_most);

    void on_click(QAbstractButton& button, Handler handler);
    /// The user chose an entry.
    void on_choice(QComboBox& box, Handler handler);
    /// The user changed the text, or the driver put one in.
    void on_change(QLineEdit& box, Handler handler);
    /// A key that types: `handler` gets its character (8 backspace, 13 Enter) and returns the one
    /// to take instead, 0 to swallow it.
    void on_key_press(QLineEdit& box, std::function<int(int)> handler);
    /// Another control of the window took the focus. A click that caused it is carried out after
    /// the handler, even when the box takes the focus back.
    void on_lost_focus(QLineEdit& box, Handler handler);

    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    EventSink& events_;
    std::unique_ptr<QWidget> widget_;
    WidgetForm form_;
    Bindings bindings_;
};

/// A window whose controls come from a form: `Ui` is the class that uic makes of it.
template <class Ui, class Widget = FormDialog>
class FormWindow : public Window {
  protected:
    explicit FormWindow(EventSink& events) : Window(events, std::make_unique<Widget>()) {
        ui.setupUi(static_cast<Widget*>(&widget()));
    }
    Ui ui;
};

} // namespace velmora
