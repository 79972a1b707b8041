#include "ui/pic_widget.h"

#include "ui/key_codes.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QPointer>

namespace velmora {

namespace {

constexpr int kSide = 2000;

int button_code(Qt::MouseButton button) {
    switch (button) {
    case Qt::LeftButton:
        return 1;
    case Qt::RightButton:
        return 2;
    case Qt::MiddleButton:
        return 4;
    default:
        return 0;
    }
}

PointerEvent pointer_event(const QMouseEvent& event, int button) {
    return {button,
            event.modifiers().testFlag(Qt::ControlModifier),
            static_cast<float>(event.position().x()),
            static_cast<float>(event.position().y()),
            event.globalPosition().toPoint(),
            event.type() == QEvent::MouseButtonDblClick};
}

constexpr int kControlKey = 17;

/// A letter of another alphabet is not the key whose capital it shares: the long s that AltGr and W
/// type on a Spanish keyboard is not S.
bool is_borrowed(const QKeyEvent& event) {
    const QString text = event.text();
    return text.size() == 1 && text.front().unicode() > 127 && event.key() < 128;
}

int code_of(const QKeyEvent& event) {
    return is_borrowed(event) ? 0 : key_code(event.key(), event.modifiers());
}

} // namespace

PicWidget::PicWidget(QWidget* parent) : QWidget(parent) {
    setFixedSize(kSide, kSide);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void PicWidget::show_image(const QImage& image) {
    image_ = &image;
    update();
}

void PicWidget::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    for (const QRect& part : event->region()) {
        if (image_ != nullptr)
            painter.drawImage(part, *image_, part);
        else
            painter.fillRect(part, palette().base());
    }
}

void PicWidget::mousePressEvent(QMouseEvent* event) {
    if (pressed)
        pressed(pointer_event(*event, button_code(event->button())));
}

void PicWidget::mouseMoveEvent(QMouseEvent* event) {
    const bool left = event->buttons().testFlag(Qt::LeftButton);
    const bool right = event->buttons().testFlag(Qt::RightButton);
    const bool middle = event->buttons().testFlag(Qt::MiddleButton);
    if (moved)
        moved(pointer_event(*event, (left ? 1 : 0) + (right ? 2 : 0) + (middle ? 4 : 0)));
}

void PicWidget::mouseReleaseEvent(QMouseEvent* event) {
    if (released)
        released(pointer_event(*event, button_code(event->button())));
}

// A key whose command took the focus, with a message or a dialog, is released there, and so is
// Ctrl: its state is sent again after the key, which has sent how it was at its press.
void PicWidget::keyPressEvent(QKeyEvent* event) {
    if (!key_down)
        return;
    const int key = code_of(*event);
    const QPointer<PicWidget> alive(this);
    const int losses = focus_losses_;
    key_down(key, key == kControlKey || event->modifiers().testFlag(Qt::ControlModifier));
    if (alive && losses != focus_losses_ && focus_lost)
        focus_lost();
}

void PicWidget::keyReleaseEvent(QKeyEvent* event) {
    if (event->isAutoRepeat() || !key_up)
        return;
    const int key = code_of(*event);
    key_up(key, key != kControlKey && event->modifiers().testFlag(Qt::ControlModifier));
}

void PicWidget::focusOutEvent(QFocusEvent* event) {
    ++focus_losses_;
    QWidget::focusOutEvent(event);
    if (focus_lost)
        focus_lost();
}

// The release of the right button has opened the pointer's menu already.
void PicWidget::contextMenuEvent(QContextMenuEvent* event) {
    if (event->reason() == QContextMenuEvent::Keyboard && menu_key)
        menu_key();
}

} // namespace velmora
