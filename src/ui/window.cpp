#include "ui/window.h"

#include "toolkit/qt_text.h"
#include "ui/controls.h"
#include "ui/key_filter.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QEvent>
#include <QLineEdit>
#include <QScreen>
#include <QSignalBlocker>

namespace velmora {

namespace {

constexpr QSize kFrame(20, 60); // of the desktop, at the most

void fill(QComboBox& box, const ChoiceList& list) {
    const QSignalBlocker quiet(box);
    box.clear();
    for (const std::string& entry : list.entries)
        box.addItem(qt_text(entry));
    box.setCurrentIndex(box.findText(qt_text(list.chosen)));
}

} // namespace

Window::Window(EventSink& events, std::unique_ptr<QWidget> widget)
    : events_(events), widget_(std::move(widget)), form_(*widget_, [this] { bindings_.pull(); }) {
    widget_->installEventFilter(this);
}

Window::~Window() = default;

std::string Window::name() const {
    return widget_->objectName().toStdString();
}

QObject* Window::control(std::string_view name) const {
    return find_control(*widget_, name);
}

void Window::place() {
    const QWidget* before = QApplication::activeWindow();
    widget_->adjustSize();
    QRect frame = widget_->frameGeometry();
    frame.moveCenter(before != nullptr ? before->frameGeometry().center()
                                       : widget_->screen()->availableGeometry().center());
    widget_->move(frame.topLeft());
}

void Window::retire() {
    widget_->removeEventFilter(this);
    for (QObject* child : widget_->findChildren<QObject*>())
        child->disconnect(this);
}

void Window::list_controls(const std::vector<std::string>& names) {
    std::vector<QObject*> controls;
    for (const std::string& name : names) {
        QObject* found = control(name);
        Q_ASSERT_X(found != nullptr, "list_controls", name.c_str());
        controls.push_back(found);
    }
    form_.list(controls);
}

void Window::bind_list(QComboBox& box, ChoiceList& list) {
    bindings().shows<std::vector<std::string>>(
        [&list] { return list.entries; },
        [&box, &list](const std::vector<std::string>&) { fill(box, list); });
    bindings().choice(box, list.chosen);
    bindings().enabled(box, list.enabled);
}

void Window::place_in_middle(QSize at_most) {
    const QRect screen = widget().screen()->availableGeometry();
    const QSize size = at_most.boundedTo(screen.size() - kFrame);
    widget().resize(size.expandedTo(widget().minimumSizeHint()));
    QRect frame(QPoint(), widget().size());
    frame.moveCenter(screen.center());
    widget().move(frame.topLeft());
}

void Window::on_click(QAbstractButton& button, Handler handler) {
    connect(&button, &QAbstractButton::clicked, this,
            [this, handler = std::move(handler)] { events_.run(handler); });
}

void Window::on_choice(QComboBox& box, Handler handler) {
    connect(&box, &QComboBox::activated, this,
            [this, handler = std::move(handler)] { events_.run(handler); });
}

void Window::on_change(QLineEdit& box, Handler handler) {
    connect(&box, &QLineEdit::textChanged, this,
            [this, handler = std::move(handler)] { events_.run(handler); });
}

void Window::on_key_press(QLineEdit& box, std::function<int(int)> handler) {
    new KeyFilter(box, [this, handler = std::move(handler)](int typed) {
        int taken = 0;
        events_.run([&] { taken = handler(typed); });
        return taken;
    });
}

void Window::on_lost_focus(QLineEdit& box, Handler handler) {
    new LostFocusFilter(box, [this, handler = std::move(handler)] { events_.run(handler); });
}

bool Window::eventFilter(QObject* watched, QEvent* event) {
    if (watched != widget_.get())
        return false;
    if (event->type() == QEvent::WindowActivate)
        events_.focused(name());
    if (event->type() != QEvent::Close)
        return false;
    event->ignore();
    events_.close(name());
    return true;
}

} // namespace velmora
