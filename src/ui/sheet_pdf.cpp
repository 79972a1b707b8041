#include "ui/sheet_pdf.h"

#include "toolkit/qt_text.h"

#include <QBuffer>
#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>

namespace velmora {

namespace {

using cutting::Ink;

constexpr int kResolution = 1200; // dots an inch
constexpr double kInch = 25.4;
constexpr double kLine = 0.2; // millimetres

QColor colour_of(Ink ink) {
    switch (ink) {
    case Ink::side_A:
        return QColor("#1c50a0");
    case Ink::side_B:
        return QColor("#b0381a");
    case Ink::point:
    case Ink::joint:
        return Qt::darkGray;
    case Ink::sync:
        break;
    }
    return Qt::black;
}

/// The painter measures in millimetres.
void draw_sheet(QPainter& painter, const cutting::Sheet& sheet) {
    painter.setBrush(Qt::NoBrush);
    for (const cutting::SheetLine& line : sheet.lines) {
        QPolygonF points;
        for (const cutting::Point& point : line.points)
            points << QPointF(point.X, point.Y);
        painter.setPen(QPen(colour_of(line.ink), kLine));
        if (line.closed)
            painter.drawPolygon(points);
        else
            painter.drawPolyline(points);
    }
    for (const cutting::SheetCircle& circle : sheet.circles) {
        painter.setPen(QPen(colour_of(circle.ink), kLine));
        painter.drawEllipse(QPointF(circle.centre.X, circle.centre.Y), circle.radius,
                            circle.radius);
    }
}

void draw_texts(QPainter& painter, const cutting::Sheet& sheet, double dots) {
    for (const cutting::SheetText& text : sheet.texts) {
        QFont font(QStringLiteral("Helvetica"));
        font.setPixelSize(qRound(text.height * dots));
        painter.setFont(font);
        painter.setPen(colour_of(text.ink));
        painter.drawText(QPointF(text.at.X, text.at.Y) * dots, qt_text(text.text));
    }
}

} // namespace

std::string pdf_of(const cutting::SheetLayout& layout) {
    if (layout.sheets.empty())
        return {};
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setResolution(kResolution);
    writer.setPageLayout(QPageLayout(QPageSize(QSizeF(layout.width, layout.height),
                                               QPageSize::Millimeter, {}, QPageSize::ExactMatch),
                                     QPageLayout::Portrait, QMarginsF()));
    const double dots = kResolution / kInch;
    QPainter painter(&writer);
    for (std::size_t i = 0; i < layout.sheets.size(); ++i) {
        if (i > 0)
            writer.newPage();
        painter.save();
        painter.scale(dots, dots);
        draw_sheet(painter, layout.sheets[i]);
        painter.restore();
        draw_texts(painter, layout.sheets[i], dots);
    }
    painter.end();
    return buffer.data().toStdString();
}

} // namespace velmora
