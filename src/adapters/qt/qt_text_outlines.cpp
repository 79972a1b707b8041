#include "adapters/qt/qt_text_outlines.h"

#include "toolkit/qt_text.h"

#include <QFont>
#include <QFontMetrics>
#include <QGlyphRun>
#include <QGuiApplication>
#include <QPainterPath>
#include <QPolygonF>
#include <QRawFont>
#include <QTextLayout>
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

/// A pasted text can have tabs and line ends; they are blanks, as the box shows them.
QString one_line(std::string_view text) {
    QString line = qt_text(text);
    for (QChar& letter : line)
        if (letter.category() == QChar::Other_Control ||
            letter.category() == QChar::Separator_Line ||
            letter.category() == QChar::Separator_Paragraph)
            letter = ' ';
    return line;
}

/// A sign of a font, its origin on the base line.
struct Sign {
    QPointF origin;
    QPainterPath outline;
};

/// The signs of the text as one line. A word that is written from right to left comes in the order
/// of its letters; here it is taken from the left like the rest, so that no way leads back over it.
std::vector<Sign> signs_of(const QString& text, const QFont& font) {
    QTextLayout layout(text, font);
    QTextOption option;
    option.setUseDesignMetrics(true);
    layout.setTextOption(option);
    layout.beginLayout();
    const QTextLine line = layout.createLine();
    layout.endLayout();
    std::vector<Sign> signs;
    for (const QGlyphRun& run : line.glyphRuns()) {
        const QList<quint32> glyphs = run.glyphIndexes();
        const QList<QPointF> origins = run.positions();
        for (qsizetype i = 0; i < glyphs.size(); ++i)
            signs.push_back(
                {origins[i] - QPointF(0, line.ascent()), run.rawFont().pathForGlyph(glyphs[i])});
    }
    std::ranges::stable_sort(signs, {}, [](const Sign& sign) { return sign.origin.x(); });
    return signs;
}

Figure figure_of(const QPolygonF& polygon, const QPointF& origin) {
    Figure figure;
    figure.reserve(static_cast<std::size_t>(polygon.size()));
    for (const QPointF& point : polygon)
        figure.push_back({origin.x() + point.x(), origin.y() + point.y()});
    return figure;
}

class QtTextOutlines : public TextOutlines {
  public:
    std::vector<Figure> figures(std::string_view text, const FontChoice& choice,
                                OutlinePoint corner) override {
        const QFont font = font_of(choice);
        const QPointF base(corner.x, corner.y + QFontMetrics(font).ascent());
        std::vector<Figure> figures;
        for (const Sign& sign : signs_of(one_line(text), font))
            for (const QPolygonF& polygon : sign.outline.toSubpathPolygons())
                figures.push_back(figure_of(polygon, base + sign.origin));
        return figures;
    }
};

} // namespace

std::unique_ptr<TextOutlines> make_qt_text_outlines() {
    return std::make_unique<QtTextOutlines>();
}

} // namespace velmora
