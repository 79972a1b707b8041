#include "ui/pic_widget.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>

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
    return {button, event.modifiers().testFlag(Qt::ControlModifier),
            static_cast<float>(event.position().x()), static_cast<float>(event.position().y())};
}

constexpr int kControlKey = 17;

/// The logic's codes of keys that type no letter or digit.
constexpr std::pair<int, int> kKeys[] = {
    {Qt::Key_Backspace, 8}, {Qt::Key_Return, 13}, {Qt::Key_Enter, 13},  {Qt::Key_Shift, 16},
    {Qt::Key_Control, 17},  {Qt::Key_Alt, 18},    {Qt::Key_Escape, 27}, {Qt::Key_PageUp, 33},
    {Qt::Key_PageDown, 34}, {Qt::Key_End, 35},    {Qt::Key_Home, 36},   {Qt::Key_Left, 37},
    {Qt::Key_Up, 38},       {Qt::Key_Right, 39},  {Qt::Key_Down, 40},   {Qt::Key_Insert, 45},
    {Qt::Key_Delete, 46},
};

/// Letters and digits are their capitals, what has no code of the logic is 0: it is a key all the
/// same.
int key_code(const QKeyEvent& event) {
    for (const auto& [key, code] : kKeys)
        if (key == event.key())
            return code;
    return event.key() >= Qt::Key_Space && event.key() <= Qt::Key_Z ? event.key() : 0;
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
    if (moved)
        moved(pointer_event(*event, (left ? 1 : 0) + (right ? 2 : 0)));
}

void PicWidget::mouseReleaseEvent(QMouseEvent* event) {
    if (released)
        released(pointer_event(*event, button_code(event->button())));
}

void PicWidget::keyPressEvent(QKeyEvent* event) {
    const int key = key_code(*event);
    if (key_down)
        key_down(key, key == kControlKey || event->modifiers().testFlag(Qt::ControlModifier));
}

void PicWidget::keyReleaseEvent(QKeyEvent* event) {
    if (event->isAutoRepeat() || !key_up)
        return;
    const int key = key_code(*event);
    key_up(key, key != kControlKey && event->modifiers().testFlag(Qt::ControlModifier));
}

// The release of the right button has opened the pointer's menu already.
void PicWidget::contextMenuEvent(QContextMenuEvent* event) {
    if (event->reason() == QContextMenuEvent::Keyboard && menu_key)
        menu_key();
}

} // namespace velmora
