#include "ui/cut_pic.h"

#include "ui/program_style.h"

#include <QMouseEvent>
#include <QPainter>
#include <cmath>

namespace velmora {

namespace {

constexpr double kNotch = 120;  // of a wheel
constexpr double kZoom = 1.25;  // by a notch or a key
constexpr double kKeyDrag = 24; // pixels by a press of an arrow
constexpr double kClick = 4;    // pixels that a hand shakes by

} // namespace

CutPic::CutPic(QWidget* parent) : QFrame(parent), colours_(cut_colours(palette())) {
    setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setFocusPolicy(Qt::StrongFocus);
    setProperty(kFocusRing, true);
}

void CutPic::show_cut(CutShown shown, const QString& instead) {
    shown_ = std::move(shown);
    instead_ = instead;
    refresh();
    if (has_picture())
        fit();
}

void CutPic::show_again(CutShown shown) {
    shown_ = std::move(shown);
    refresh();
}

void CutPic::show_wire(double along) {
    shown_.along = along;
    update();
}

void CutPic::show_mark(std::optional<cutting::Entry> mark) {
    shown_.mark = std::move(mark);
    if (shown_.mark && has_picture())
        go_to_mark();
    refresh();
}

void CutPic::show_all() {
    if (has_picture())
        fit();
    refresh();
}

bool CutPic::has_picture() const {
    return shown_.cut != nullptr && shown_.cut->drawable();
}

QSize CutPic::sizeHint() const {
    return {560, 250};
}

QSize CutPic::minimumSizeHint() const {
    return {240, 130};
}

void CutPic::refresh() {
    start_over();
    update();
}

void CutPic::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    const QRect room = contentsRect();
    painter.fillRect(room, colours_.ground);
    painter.setClipRect(room);
    painter.translate(room.topLeft());
    if (has_picture()) {
        paint(painter);
    } else {
        painter.setPen(colours_.text);
        painter.drawText(QRect({}, room.size()).adjusted(16, 16, -16, -16),
                         Qt::AlignCenter | Qt::TextWordWrap, instead_);
    }
    painter.end();
    QFrame::paintEvent(event);
}

void CutPic::resizeEvent(QResizeEvent* event) {
    QFrame::resizeEvent(event);
    take_room(contentsRect().size());
    refresh();
}

void CutPic::changeEvent(QEvent* event) {
    QFrame::changeEvent(event);
    if (event->type() != QEvent::PaletteChange)
        return;
    colours_ = cut_colours(palette());
    refresh();
}

QPointF CutPic::inside(const QMouseEvent& event) const {
    return event.position() - contentsRect().topLeft();
}

void CutPic::wheelEvent(QWheelEvent* event) {
    if (!has_picture() || event->angleDelta().y() == 0)
        return event->ignore();
    zoom(std::pow(kZoom, event->angleDelta().y() / kNotch),
         event->position() - contentsRect().topLeft());
    refresh();
    event->accept();
}

void CutPic::mousePressEvent(QMouseEvent* event) {
    held_ = has_picture() &&
            (event->buttons() & (Qt::LeftButton | Qt::MiddleButton | Qt::RightButton)) != 0;
    dragging_ = false;
    pressed_ = last_ = inside(*event);
}

void CutPic::mouseMoveEvent(QMouseEvent* event) {
    if (!held_)
        return;
    const QPointF now = inside(*event);
    dragging_ = dragging_ || (now - pressed_).manhattanLength() > kClick;
    if (!dragging_)
        return;
    drag(now - last_,
         (event->buttons() & Qt::LeftButton) == 0 || (event->modifiers() & Qt::ShiftModifier) != 0);
    last_ = now;
    refresh();
}

void CutPic::mouseReleaseEvent(QMouseEvent* event) {
    const bool clicked = held_ && !dragging_ && event->button() == Qt::LeftButton;
    held_ = event->buttons() != Qt::NoButton && held_;
    if (!clicked)
        return;
    if (const auto point = point_at(inside(*event)))
        emit point_clicked(static_cast<int>(*point));
}

void CutPic::mouseDoubleClickEvent(QMouseEvent* event) {
    held_ = false;
    if (event->button() != Qt::RightButton)
        show_all();
}

void CutPic::keyPressEvent(QKeyEvent* event) {
    const QPointF middle = QRectF({}, QSizeF(contentsRect().size())).center();
    const bool aside = (event->modifiers() & Qt::ShiftModifier) != 0;
    if (!has_picture())
        return QFrame::keyPressEvent(event);
    switch (event->key()) {
    case Qt::Key_Plus:
        zoom(kZoom, middle);
        break;
    case Qt::Key_Minus:
        zoom(1 / kZoom, middle);
        break;
    case Qt::Key_Home:
        fit();
        break;
    case Qt::Key_Left:
        drag({-kKeyDrag, 0}, aside);
        break;
    case Qt::Key_Right:
        drag({kKeyDrag, 0}, aside);
        break;
    case Qt::Key_Up:
        drag({0, -kKeyDrag}, aside);
        break;
    case Qt::Key_Down:
        drag({0, kKeyDrag}, aside);
        break;
    case Qt::Key_PageDown:
        emit stepped(1);
        break;
    case Qt::Key_PageUp:
        emit stepped(-1);
        break;
    default:
        if (!take_key(event->key()))
            return QFrame::keyPressEvent(event);
    }
    refresh();
}

} // namespace velmora
