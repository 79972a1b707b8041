#include "ui/program_style.h"

#include "toolkit/contrast.h"

#include <QApplication>
#include <QPainter>
#include <QStyleFactory>
#include <QStyleOption>
#include <QWidget>

namespace velmora {

namespace {

/// What tells a control from its ground has this much, by the rules for readable screens.
constexpr double kLeastContrast = 3;
constexpr double kEdge = 1.2;
constexpr double kRing = 1.6;
constexpr double kInsideButton = 3; ///< from its edge

QColor text_of(const QStyleOption& option) {
    return option.palette.color(QPalette::WindowText);
}

QColor ground_of(const QStyleOption& option) {
    return option.palette.color(QPalette::Window);
}

QRectF inside(const QStyleOption& option, double width) {
    const double half = width / 2;
    return QRectF(option.rect).adjusted(half, half, -half, -half);
}

/// Halfway between the ground and the text: visible on both, and louder than neither.
void draw_edge(const QStyleOption& option, QPainter& painter, bool round) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(between(ground_of(option), text_of(option)), kEdge));
    const QRectF place = inside(option, kEdge + 1);
    if (round)
        painter.drawEllipse(place);
    else
        painter.drawRoundedRect(place, 2, 2);
    painter.restore();
}

void draw_ring(const QStyleOption& option, QPainter& painter, double inset = 0) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    const QColor ring = option.palette.color(QPalette::Highlight);
    painter.setPen(QPen(standing_out(ring, ground_of(option), kLeastContrast), kRing));
    painter.drawRoundedRect(inside(option, kRing + 2 * inset), 2, 2);
    painter.restore();
}

/// Its edge is the same without the focus.
bool is_default_and_reached(const QStyleOption& option) {
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(&option);
    constexpr QStyle::State kReached = QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange;
    return button != nullptr && (button->state & kReached) == kReached &&
           (button->features & QStyleOptionButton::DefaultButton) != 0;
}

} // namespace

ProgramStyle::ProgramStyle(const QString& name)
    : QProxyStyle(name.isEmpty() ? nullptr : QStyleFactory::create(name)) {}

void ProgramStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                 QPainter* painter, const QWidget* widget) const {
    const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
    if (element == PE_PanelLineEdit && frame != nullptr && (frame->state & State_ReadOnly) != 0) {
        QStyleOptionFrame shown = *frame;
        shown.palette.setBrush(QPalette::Base, shown.palette.window());
        QProxyStyle::drawPrimitive(element, &shown, painter, widget);
        return;
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    if (element == PE_IndicatorCheckBox || element == PE_IndicatorRadioButton)
        draw_edge(*option, *painter, element == PE_IndicatorRadioButton);
    if (element == PE_FrameFocusRect)
        draw_ring(*option, *painter);
}

void ProgramStyle::drawControl(ControlElement element, const QStyleOption* option,
                               QPainter* painter, const QWidget* widget) const {
    QProxyStyle::drawControl(element, option, painter, widget);
    if (element == CE_PushButton && is_default_and_reached(*option))
        draw_ring(*option, *painter, kInsideButton);
    const QWidget* focus = QApplication::focusWidget();
    if (element == CE_ShapedFrame && widget != nullptr && widget->property(kFocusRing).toBool() &&
        focus != nullptr && (widget == focus || widget->isAncestorOf(focus)))
        draw_ring(*option, *painter);
}

} // namespace velmora
