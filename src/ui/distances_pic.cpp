#include "ui/distances_pic.h"

#include <QPainter>
#include <QPainterPath>

namespace velmora {

namespace {

/// The drawing's own measures; it is scaled to the widget's size, its lines are not.
constexpr QSizeF kSheet(360, 150);
constexpr double kGround = 108;
constexpr double kWire = 46;
constexpr double kTowerTop = 14;
constexpr double kTowerHalf = 5;
constexpr double kFootHalf = 16;
constexpr double kDimension = 130; ///< height of the dimension lines
constexpr double kArrow = 6;
constexpr double kLineWidth = 1.3;

// Along the wire: the towers' middles, the faces of the blocks that the two outlines lie on.
constexpr double kLeftTower = 24;
constexpr double kSideA = 112;
constexpr double kSideB = 236;
constexpr double kRightTower = 336;
constexpr double kBlockDepth = 22;
constexpr double kBlockTop = 64;

class Sheet {
  public:
    Sheet(QPainter& painter, QSizeF size)
        : painter_(painter),
          scale_(std::min(size.width() / kSheet.width(), size.height() / kSheet.height())) {
        painter.translate((size.width() - kSheet.width() * scale_) / 2,
                          (size.height() - kSheet.height() * scale_) / 2);
    }

    void line(double x1, double y1, double x2, double y2) const {
        painter_.drawLine(place(x1, y1), place(x2, y2));
    }
    void box(double left, double top, double right, double bottom) const {
        painter_.drawRect(QRectF(place(left, top), place(right, bottom)));
    }
    /// A text in the middle of a place, on a ground that keeps lines off it.
    void text(double x, double y, const QString& text, const QColor& ground) const {
        QRectF room(QPointF(), QSizeF(painter_.fontMetrics().horizontalAdvance(text) + 8,
                                      painter_.fontMetrics().height()));
        room.moveCenter(place(x, y));
        painter_.fillRect(room, ground);
        painter_.drawText(room, Qt::AlignCenter, text);
    }
    void arrow_head(double x, double y, double back) const {
        const QPointF tip = place(x, y);
        const double length = std::copysign(kArrow, back);
        QPainterPath head(tip);
        head.lineTo(tip + QPointF(length, -kArrow / 2));
        head.lineTo(tip + QPointF(length, kArrow / 2));
        painter_.fillPath(head, painter_.pen().color());
    }

  private:
    [[nodiscard]] QPointF place(double x, double y) const { return {x * scale_, y * scale_}; }

    QPainter& painter_;
    double scale_;
};

void draw_tower(const Sheet& sheet, double x) {
    sheet.box(x - kTowerHalf, kTowerTop, x + kTowerHalf, kGround);
    sheet.line(x - kFootHalf, kGround, x + kFootHalf, kGround);
}

void draw_block(const Sheet& sheet, double left, double letter_x, const QString& side,
                const QColor& ground) {
    sheet.box(left, kBlockTop - 30, left + kBlockDepth, kGround);
    sheet.text(letter_x, kBlockTop + 20, side, ground);
}

/// The distance between two places along the wire, in terms of what is entered.
void draw_distance(const Sheet& sheet, double from, double to, const QString& formula,
                   const QColor& ground) {
    sheet.line(from, kDimension, to, kDimension);
    sheet.arrow_head(from, kDimension, 1);
    sheet.arrow_head(to, kDimension, -1);
    sheet.text((from + to) / 2, kDimension, formula, ground);
}

void draw_reference_lines(const Sheet& sheet) {
    for (const double x : {kLeftTower, kSideA, kSideB, kRightTower})
        sheet.line(x, kGround + 6, x, kDimension + 8);
}

} // namespace

DistancesPic::DistancesPic(QWidget* parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

QSize DistancesPic::sizeHint() const {
    return {420, 175};
}

QSize DistancesPic::minimumSizeHint() const {
    return {300, 125};
}

void DistancesPic::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor ground = palette().color(QPalette::Window);
    const QColor text = palette().color(QPalette::WindowText);
    const Sheet sheet(painter, size());
    painter.setPen(QPen(text, kLineWidth));
    draw_tower(sheet, kLeftTower);
    draw_tower(sheet, kRightTower);
    draw_block(sheet, kSideA, kSideA + kBlockDepth / 2, QStringLiteral("A"), ground);
    draw_block(sheet, kSideB - kBlockDepth, kSideB - kBlockDepth / 2, QStringLiteral("B"), ground);
    draw_reference_lines(sheet);
    draw_distance(sheet, kLeftTower, kSideA, QStringLiteral("X + Z"), ground);
    draw_distance(sheet, kSideA, kSideB, QStringLiteral("Z"), ground);
    draw_distance(sheet, kSideB, kRightTower, QStringLiteral("Y + Z"), ground);
    painter.setPen(QPen(palette().color(QPalette::Highlight), kLineWidth));
    sheet.line(kLeftTower + kTowerHalf, kWire, kRightTower - kTowerHalf, kWire);
}

} // namespace velmora
