#include "pictures/contact_sheet.h"

#include "pictures/gallery.h"
#include "toolkit/qt_text.h"

#include <QDir>
#include <QImage>
#include <QPainter>
#include <vector>

namespace velmora::pictures {

namespace {

constexpr QSize kCell(240, 180);
constexpr int kGap = 8;
constexpr int kHead = 24; ///< over the columns
constexpr int kNameColumn = 180;
constexpr auto kSheet = "contact-sheet.png";

struct Column {
    std::string_view language;
    Theme theme;
    int scale;
};

std::vector<Column> columns() {
    std::vector<Column> all;
    for (const Theme theme : kThemes)
        for (const int scale : kScales)
            for (const std::string_view language : kLanguages)
                all.push_back({language, theme, scale});
    return all;
}

QString title(const Column& column) {
    return QString("%1  %2  %3 %")
        .arg(qt_text(column.language), name_of(column.theme))
        .arg(column.scale);
}

QStringList pages_in(const QDir& folder) {
    QStringList pages;
    for (const QString& file : folder.entryList({"*.*.*.*.png"}, QDir::Files, QDir::Name))
        pages << file.section('.', 0, 0);
    pages.removeDuplicates();
    return pages;
}

QRect cell(int row, int column) {
    return {{kNameColumn + column * (kCell.width() + kGap), kHead + row * (kCell.height() + kGap)},
            kCell};
}

/// As large as it fits, never larger than it is.
void place_picture(QPainter& painter, const QRect& room, const QString& file) {
    const QImage picture(file);
    if (picture.isNull())
        return painter.drawText(room, Qt::AlignCenter, "-");
    QSize size = picture.size();
    if (size.width() > room.width() || size.height() > room.height())
        size.scale(room.size(), Qt::KeepAspectRatio);
    const QImage fitted = picture.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    painter.drawImage(room.topLeft(), fitted);
}

QSize sheet_size(qsizetype pages, std::size_t columns) {
    return {kNameColumn + static_cast<int>(columns) * (kCell.width() + kGap),
            kHead + static_cast<int>(pages) * (kCell.height() + kGap)};
}

} // namespace

bool make_contact_sheet(const QString& folder) {
    const QDir pictures(folder);
    const QStringList pages = pages_in(pictures);
    if (pages.isEmpty())
        return false;
    const std::vector<Column> across = columns();
    QImage sheet(sheet_size(pages.size(), across.size()), QImage::Format_RGB32);
    sheet.fill(QColor("#c8ccd2"));
    QPainter painter(&sheet);
    painter.setPen(Qt::black);
    for (int column = 0; const Column& shown : across) {
        const QRect first = cell(0, column++);
        painter.drawText(QRect(first.left(), 0, first.width(), kHead), Qt::AlignVCenter,
                         title(shown));
    }
    for (int row = 0; row < pages.size(); ++row) {
        painter.drawText(QRect(kGap, cell(row, 0).top(), kNameColumn - kGap, kCell.height()),
                         Qt::AlignTop | Qt::TextWrapAnywhere, pages[row]);
        for (int column = 0; const Column& shown : across)
            place_picture(
                painter, cell(row, column++),
                pictures.filePath(file_name(pages[row], shown.language, shown.theme, shown.scale)));
    }
    painter.end();
    return sheet.save(pictures.filePath(kSheet));
}

} // namespace velmora::pictures
