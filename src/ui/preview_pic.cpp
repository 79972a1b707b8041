#include "ui/preview_pic.h"

#include "canvas/colours.h"
#include "toolkit/contrast.h"
#include "toolkit/line_clip.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

namespace velmora {

namespace {

constexpr double kTwipsToThePixel = 15;
constexpr double kLineWidth = 1;
/// The colours of the marks are meant for a light ground; a dark theme has them lighter.
constexpr double kLeastContrast = 3;
/// Beyond the sheet's edges, so that the end of a clipped line doesn't show.
constexpr double kClipMargin = 8;

} // namespace

PreviewPic::PreviewPic(QWidget* parent) : QFrame(parent) {
    setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

double PreviewPic::ScaleWidth() const {
    return contentsRect().width() * kTwipsToThePixel;
}

double PreviewPic::ScaleHeight() const {
    return contentsRect().height() * kTwipsToThePixel;
}

void PreviewPic::Cls() {
    marks_.clear();
    sheet_ = {};
    drawn_size_ = contentsRect().size();
    update();
}

void PreviewPic::Line(double x1, double y1, double x2, double y2, std::uint32_t colour) {
    add({x1, y1, x2, y2, 0, screen_rgb(colour)});
}

void PreviewPic::Circle(double x, double y, double radius, std::uint32_t colour) {
    add({x, y, x, y, radius, screen_rgb(colour)});
}

void PreviewPic::add(const Mark& mark) {
    marks_.push_back(mark);
    if (!std::exchange(repaint_asked_, true))
        update();
}

QSize PreviewPic::sizeHint() const {
    return {340, 190};
}

QSize PreviewPic::minimumSizeHint() const {
    return {200, 110};
}

void PreviewPic::paintEvent(QPaintEvent* event) {
    repaint_asked_ = false;
    fit_sheet();
    bring_up_to_date();
    QPainter(this).drawPixmap(contentsRect().topLeft(), sheet_);
    QFrame::paintEvent(event);
}

void PreviewPic::changeEvent(QEvent* event) {
    QFrame::changeEvent(event);
    if (event->type() != QEvent::PaletteChange)
        return;
    sheet_ = {};
    update();
}

void PreviewPic::fit_sheet() {
    const QSizeF size = QSizeF(contentsRect().size()) * devicePixelRatioF();
    const QSize pixels(static_cast<int>(std::ceil(size.width())),
                       static_cast<int>(std::ceil(size.height())));
    if (sheet_.size() == pixels && sheet_.devicePixelRatio() == devicePixelRatioF())
        return;
    sheet_ = QPixmap(pixels);
    sheet_.setDevicePixelRatio(devicePixelRatioF());
    sheet_.fill(palette().color(QPalette::Base));
    painted_ = 0;
}

QTransform PreviewPic::to_sheet() const {
    const QRect now = contentsRect();
    const double stretch =
        std::min(now.width() / drawn_size_.width(), now.height() / drawn_size_.height());
    QTransform result;
    result.translate(0, now.height() - drawn_size_.height() * stretch);
    result.scale(stretch / kTwipsToThePixel, stretch / kTwipsToThePixel);
    return result;
}

void PreviewPic::bring_up_to_date() {
    if (painted_ == marks_.size() || drawn_size_.isEmpty())
        return;
    QPainter painter(&sheet_);
    painter.setRenderHint(QPainter::Antialiasing);
    const QTransform transform = to_sheet();
    const QColor paper = palette().color(QPalette::Base);
    const QRectF sheet(QPointF(), QSizeF(contentsRect().size()));
    for (; painted_ < marks_.size(); ++painted_) {
        const Mark& mark = marks_[painted_];
        painter.setPen(
            QPen(standing_out(QColor::fromRgb(mark.colour), paper, kLeastContrast), kLineWidth));
        const QPointF place = transform.map(QPointF(mark.x1, mark.y1));
        const double radius = mark.radius * transform.m11();
        const double margin = radius + kClipMargin;
        const QRectF visible = sheet.adjusted(-margin, -margin, margin, margin);
        if (mark.radius > 0) {
            if (visible.contains(place))
                painter.drawEllipse(place, radius, radius);
        } else if (const auto line =
                       part_inside({place, transform.map(QPointF(mark.x2, mark.y2))}, visible)) {
            painter.drawLine(*line);
        }
    }
}

} // namespace velmora
