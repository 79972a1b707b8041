#include "adapters/qt/qt_text_outlines.h"

#include <QFont>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QPainterPath>
#include <QPolygonF>
#include <algorithm>

namespace velmora {

namespace {

/// At 15 twips to the pixel, as everywhere in the program, whatever the screen's own measure.
constexpr double kPixelsPerPoint = 20.0 / 15.0;

QFont font_of(const FontChoice& choice) {
    QFont font = QGuiApplication::font();
    if (!choice.name.empty())
        font.setFamilies({QString::fromStdString(choice.name)});
    font.setPixelSize(std::max(1, qRound(choice.size * kPixelsPerPoint)));
    font.setBold(choice.bold);
    font.setItalic(choice.italic);
    // The letters as they were drawn, not as they were bent for a screen.
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setStyleStrategy(QFont::PreferOutline);
    return font;
}

Figure figure_of(const QPolygonF& polygon) {
    Figure figure;
    figure.reserve(static_cast<std::size_t>(polygon.size()));
    for (const QPointF& point : polygon)
        figure.push_back({point.x(), point.y()});
    return figure;
}

class QtTextOutlines : public TextOutlines {
  public:
    std::vector<Figure> figures(std::string_view text, const FontChoice& choice,
                                OutlinePoint corner) override {
        const QFont font = font_of(choice);
        QPainterPath path;
        path.addText(corner.x, corner.y + QFontMetrics(font).ascent(), font,
                     QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())));
        std::vector<Figure> figures;
        for (const QPolygonF& polygon : path.toSubpathPolygons())
            figures.push_back(figure_of(polygon));
        return figures;
    }
};

} // namespace

std::unique_ptr<TextOutlines> make_qt_text_outlines() {
    return std::make_unique<QtTextOutlines>();
}

} // namespace velmora
