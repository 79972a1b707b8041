#include "ui/sample_pic.h"

#include "canvas/colours.h"
#include "document/state/settings.h"

#include <QLabel>
#include <QPainter>
#include <array>

namespace velmora {

namespace {

constexpr double kMargin = 24; ///< from the edges to the axes
constexpr double kPointRadius = 3;
constexpr double kSyncRadius = 5;
constexpr double kSelectionHalf = 3;

/// The outline in shares of the room between the axes, Y upwards. It is cut from its first point.
constexpr auto kOutline = std::to_array<QPointF>(
    {{0.06, 0.30}, {0.40, 0.12}, {0.94, 0.22}, {0.78, 0.55}, {0.46, 0.72}, {0.18, 0.58}});
constexpr std::array<std::size_t, 2> kSyncPoints = {0, 2};
constexpr std::size_t kSelected = 4;

QColor colour(std::uint32_t stored) {
    return QColor::fromRgb(screen_rgb(stored));
}

} // namespace

SamplePic::SamplePic(QWidget* parent) : QWidget(parent), float_(*new QLabel(this)) {
    float_.setObjectName("lbl_float");
    float_.setText(QStringLiteral("(X.xx,Y.yy)"));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    draw();
}

void SamplePic::draw() {
    colours_ = {colour(state::settings.cl_fondo),     colour(state::settings.cl_ejes),
                colour(state::settings.cl_lineas),    colour(state::settings.cl_linea1),
                colour(state::settings.cl_linea2),    colour(state::settings.cl_punto),
                colour(state::settings.cl_puntosinc), colour(state::settings.cl_puntosel)};
    QPalette palette = float_.palette();
    palette.setColor(QPalette::WindowText, colour(state::settings.cl_coords));
    float_.setPalette(palette);
    update();
}

QSize SamplePic::sizeHint() const {
    return minimumSizeHint();
}

QSize SamplePic::minimumSizeHint() const {
    return {280, 220};
}

void SamplePic::resizeEvent(QResizeEvent*) {
    float_.adjustSize();
    const QPoint beside = place(kOutline[kSelected]).toPoint();
    float_.move(beside.x() - float_.width() / 2, beside.y() - float_.height() - 8);
}

QPointF SamplePic::place(QPointF share) const {
    const double x = kMargin + share.x() * (width() - 2 * kMargin);
    const double y = height() - kMargin - share.y() * (height() - 2 * kMargin);
    return {qRound(x) + 0.5, qRound(y) + 0.5};
}

void SamplePic::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), colours_.background);
    draw_axes(painter);
    draw_outline(painter);
    draw_points(painter);
}

void SamplePic::draw_axes(QPainter& painter) const {
    const QPointF origin = place({0, 0});
    painter.setPen(colours_.axes);
    painter.drawLine(QPointF(origin.x(), 0), QPointF(origin.x(), height()));
    painter.drawLine(QPointF(0, origin.y()), QPointF(width(), origin.y()));
}

void SamplePic::draw_outline(QPainter& painter) const {
    for (std::size_t i = 0; i < kOutline.size(); ++i) {
        painter.setPen(i == 0   ? colours_.first_line
                       : i == 1 ? colours_.second_line
                                : colours_.lines);
        painter.drawLine(place(kOutline[i]), place(kOutline[(i + 1) % kOutline.size()]));
    }
}

void SamplePic::draw_points(QPainter& painter) const {
    painter.setPen(colours_.point);
    for (const QPointF& point : kOutline)
        painter.drawEllipse(place(point), kPointRadius, kPointRadius);
    painter.setPen(colours_.sync_point);
    for (const std::size_t sync : kSyncPoints)
        painter.drawEllipse(place(kOutline[sync]), kSyncRadius, kSyncRadius);
    const QPointF half(kSelectionHalf, kSelectionHalf);
    const QPointF selected = place(kOutline[kSelected]);
    painter.fillRect(QRectF(selected - half, selected + half), colours_.selected);
}

} // namespace velmora
