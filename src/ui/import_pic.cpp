#include "ui/import_pic.h"

#include "toolkit/contrast.h"

#include <QEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace velmora {

namespace {

constexpr double kMargin = 18;     // pixels round the drawing
constexpr double kLeftWidth = 1.4; // of a chain that is not taken
constexpr double kTakenWidth = 3;
constexpr double kReach = 8; // from a click to the chain that it means
constexpr double kArrow = 9;
constexpr double kStart = 4.5;
/// Nearer points fall together on the screen.
constexpr double kNextPoint = 0.4;
/// Contrast with the ground, of lines that have to be told apart.
constexpr double kTold = 3;

/// Along a segment, how far a place is from it.
double distance_to(QPointF place, QPointF from, QPointF to) {
    const QPointF along = to - from;
    const double square = QPointF::dotProduct(along, along);
    const double share =
        square > 0 ? std::clamp(QPointF::dotProduct(place - from, along) / square, 0.0, 1.0) : 0;
    const QPointF off = place - (from + share * along);
    return std::hypot(off.x(), off.y());
}

} // namespace

QColor chain_colour(std::size_t chain, const QColor& ground) {
    constexpr auto colours =
        std::to_array<QRgb>({0x1F5FBF, 0xC8401E, 0x2E8B3D, 0x8E44AD, 0xB8860B, 0x00838F, 0xC2185B,
                             0x5D4037, 0x455A64, 0x6B8E23});
    return standing_out(QColor::fromRgb(colours[chain % colours.size()]), ground, kTold);
}

ImportPic::ImportPic(QWidget* parent) : QFrame(parent) {
    setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void ImportPic::show_chains_of(const ImportarWindow& state) {
    state_ = &state;
}

void ImportPic::start_over() {
    sheet_ = {};
    update();
}

QSize ImportPic::sizeHint() const {
    return {520, 360};
}

QSize ImportPic::minimumSizeHint() const {
    return {240, 160};
}

void ImportPic::resizeEvent(QResizeEvent* event) {
    start_over();
    QFrame::resizeEvent(event);
}

void ImportPic::changeEvent(QEvent* event) {
    if (event->type() == QEvent::PaletteChange)
        start_over();
    QFrame::changeEvent(event);
}

void ImportPic::paintEvent(QPaintEvent* event) {
    if (sheet_.isNull() || sheet_.devicePixelRatio() != devicePixelRatioF())
        draw();
    QPainter(this).drawPixmap(contentsRect().topLeft(), sheet_);
    QFrame::paintEvent(event);
}

QPointF ImportPic::place(const ImportarPoint& point) const {
    return to_sheet_.map(QPointF(point.X, point.Y));
}

/// Everything found goes into the picture, X to the right and Y upwards, in one scale.
void ImportPic::fit() {
    constexpr double beyond = std::numeric_limits<double>::infinity();
    double left = beyond;
    double right = -beyond;
    double bottom = beyond;
    double top = -beyond;
    for (const ImportarChain& chain : state_->Lst_Chains) {
        for (const ImportarPoint& point : chain.points) {
            left = std::min(left, point.X);
            right = std::max(right, point.X);
            bottom = std::min(bottom, point.Y);
            top = std::max(top, point.Y);
        }
    }
    to_sheet_ = {};
    if (left > right)
        return;
    const QSizeF room = QSizeF(contentsRect().size()) - QSizeF(2 * kMargin, 2 * kMargin);
    const double widest = std::max(right - left, (top - bottom) * room.width() / room.height());
    const double stretch = widest > 0 ? room.width() / widest : 1;
    to_sheet_.translate(kMargin + room.width() / 2, kMargin + room.height() / 2);
    to_sheet_.scale(stretch, -stretch);
    to_sheet_.translate(-(left + right) / 2, -(bottom + top) / 2);
}

void ImportPic::draw() {
    const QSizeF size = QSizeF(contentsRect().size()) * devicePixelRatioF();
    sheet_ = QPixmap(size.toSize().expandedTo({1, 1}));
    sheet_.setDevicePixelRatio(devicePixelRatioF());
    const QColor ground = palette().color(QPalette::Base);
    sheet_.fill(ground);
    if (state_ == nullptr)
        return;
    fit();
    QPainter painter(&sheet_);
    painter.setRenderHint(QPainter::Antialiasing);
    const std::span<const ImportarChain> chains(state_->Lst_Chains);
    for (const bool taken : {false, true}) {
        for (std::size_t i = 0; i < chains.size(); ++i)
            if ((chains[i].taken > 0) == taken)
                draw_chain(painter, chains[i],
                           QPen(chain_colour(i, ground), taken ? kTakenWidth : kLeftWidth,
                                Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    }
    for (std::size_t i = 0; i < chains.size(); ++i)
        draw_number(painter, chains[i], chain_colour(i, ground));
    draw_start(painter);
}

void ImportPic::draw_chain(QPainter& painter, const ImportarChain& chain, const QPen& pen) const {
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    QPolygonF line;
    for (const ImportarPoint& point : chain.points) {
        const QPointF next = place(point);
        if (line.isEmpty() || (next - line.last()).manhattanLength() > kNextPoint)
            line << next;
    }
    if (line.isEmpty())
        return;
    if (chain.closed)
        line << line.first();
    painter.drawPolyline(line);
}

/// In the middle of a segment of the chain, away from the mark of the start.
QPointF ImportPic::place_of_number(const std::vector<ImportarPoint>& points) const {
    constexpr double clear = 30; // pixels from the start
    const auto at = [&](double share) {
        const auto here = static_cast<std::size_t>(share * static_cast<double>(points.size() - 1));
        return (place(points[here]) + place(points[(here + 1) % points.size()])) / 2;
    };
    for (const double share : {0.5, 0.25, 0.75}) {
        const QPointF found = at(share);
        if (state_->outline.empty() ||
            (found - place(state_->outline.front())).manhattanLength() > clear)
            return found;
    }
    return at(0.5);
}

/// The place among those taken.
void ImportPic::draw_number(QPainter& painter, const ImportarChain& chain,
                            const QColor& colour) const {
    if (chain.taken == 0 || chain.points.empty())
        return;
    const QString text = QString::number(chain.taken);
    QRectF box = painter.fontMetrics().boundingRect(text);
    box = box.marginsAdded({5, 2, 5, 2});
    box.moveCenter(place_of_number(chain.points));
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    painter.drawRoundedRect(box, 4, 4);
    painter.setPen(palette().color(QPalette::Base));
    painter.drawText(box, Qt::AlignCenter, text);
}

void ImportPic::draw_start(QPainter& painter) const {
    const std::vector<ImportarPoint>& outline = state_->outline;
    if (outline.empty())
        return;
    const QPointF start = place(outline.front());
    painter.setPen(Qt::NoPen);
    const QColor ink = palette().color(QPalette::Text);
    painter.setBrush(ink);
    painter.drawEllipse(start, kStart, kStart);
    const auto next = std::ranges::find_if(outline, [&](const ImportarPoint& point) {
        return (place(point) - start).manhattanLength() > 3 * kArrow;
    });
    if (next == outline.end())
        return;
    const QPointF to = place(*next);
    painter.translate(start);
    painter.rotate(std::atan2(to.y() - start.y(), to.x() - start.x()) * 180 / M_PI);
    painter.drawPolygon(QPolygonF(
        {{kStart + 2 * kArrow, 0}, {kStart + kArrow, -kArrow / 2}, {kStart + kArrow, kArrow / 2}}));
    painter.setPen(QPen(ink, 2));
    painter.drawLine(QPointF(0, 0), QPointF(kStart + kArrow, 0));
}

std::optional<int> ImportPic::chain_at(QPointF clicked) const {
    double nearest = kReach;
    std::optional<int> found;
    for (std::size_t i = 0; i < state_->Lst_Chains.size(); ++i) {
        const ImportarChain& chain = state_->Lst_Chains[i];
        const std::size_t segments =
            chain.closed ? chain.points.size() : std::max<std::size_t>(chain.points.size(), 1) - 1;
        for (std::size_t k = 0; k < segments; ++k) {
            const double distance = distance_to(clicked, place(chain.points[k]),
                                                place(chain.points[(k + 1) % chain.points.size()]));
            if (distance < nearest) {
                nearest = distance;
                found = static_cast<int>(i);
            }
        }
    }
    return found;
}

void ImportPic::mousePressEvent(QMouseEvent* event) {
    if (state_ == nullptr || event->button() != Qt::LeftButton)
        return;
    if (const auto chain = chain_at(event->position() - contentsRect().topLeft()))
        emit chain_clicked(*chain);
}

} // namespace velmora
