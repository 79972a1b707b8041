#include "printing/printed_sheet.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <stdexcept>

namespace velmora::test {

namespace {

constexpr int kTwipsPerInch = 1440;
constexpr int kTwipsPerPixel = 5;

using Ink = int (*)(QRgb); ///< how much of it a pixel has, 0 to 255
constexpr int kSeen = 60;

int red_ink(QRgb pixel) {
    return qRed(pixel) - std::max(qGreen(pixel), qBlue(pixel));
}

int black_ink(QRgb pixel) {
    return 255 - qRed(pixel); // red has none
}

/// The middles of the runs of ink, each pixel by its weight.
std::vector<double> strokes(int pixels, const std::function<int(int)>& ink_at) {
    std::vector<double> middles;
    double weight = 0;
    double moment = 0;
    for (int i = 0; i <= pixels; ++i) {
        const int ink = i < pixels ? ink_at(i) : 0;
        if (ink >= kSeen) {
            weight += ink;
            moment += ink * (i + 0.5);
        } else if (weight > 0) {
            middles.push_back(moment / weight * kTwipsPerPixel);
            weight = moment = 0;
        }
    }
    return middles;
}

std::vector<double> across(const QImage& picture, double y, Ink ink) {
    const int row = static_cast<int>(y / kTwipsPerPixel);
    return strokes(picture.width(), [&](int x) { return ink(picture.pixel(x, row)); });
}

std::vector<double> down(const QImage& picture, double x, Ink ink) {
    const int column = static_cast<int>(x / kTwipsPerPixel);
    return strokes(picture.height(), [&](int y) { return ink(picture.pixel(column, y)); });
}

QStringList pages_of(const QString& pdf, const QTemporaryDir& folder) {
    QProcess process;
    process.start("pdftoppm", {"-png", "-r", QString::number(kTwipsPerInch / kTwipsPerPixel), pdf,
                               folder.filePath("page")});
    if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit ||
        process.exitCode() != 0)
        throw std::runtime_error("pdftoppm (poppler-utils) gives no picture of " +
                                 pdf.toStdString() + ": " +
                                 process.readAllStandardError().toStdString());
    return QDir(folder.path()).entryList({"page*.png"});
}

} // namespace

PrintedSheet::PrintedSheet(const QString& pdf) {
    const QTemporaryDir folder;
    const QStringList pages = pages_of(pdf, folder);
    if (pages.size() != 1 || !picture_.load(folder.filePath(pages.first())))
        throw std::runtime_error(pdf.toStdString() + " has " + std::to_string(pages.size()) +
                                 " pages");
}

PrintedSheet PrintedSheet::turned() const {
    return PrintedSheet(picture_.transformed(QTransform().rotate(90)));
}

QSizeF PrintedSheet::size() const {
    return QSizeF(picture_.size()) * kTwipsPerPixel;
}

std::vector<double> PrintedSheet::black_across(double y) const {
    return across(picture_, y, black_ink);
}

std::vector<double> PrintedSheet::black_down(double x) const {
    return down(picture_, x, black_ink);
}

std::vector<double> PrintedSheet::red_across(double y) const {
    return across(picture_, y, red_ink);
}

std::vector<double> PrintedSheet::red_down(double x) const {
    return down(picture_, x, red_ink);
}

std::vector<QPointF> PrintedSheet::red_places() const {
    std::vector<QPointF> places;
    for (int y = 0; y < picture_.height(); ++y)
        for (int x = 0; x < picture_.width(); ++x)
            if (red_ink(picture_.pixel(x, y)) >= kSeen)
                places.push_back(QPointF(x + 0.5, y + 0.5) * kTwipsPerPixel);
    return places;
}

void PrintedSheet::keep(const QString& name) const {
    const QString folder = qEnvironmentVariable("VELMORA_PICTURES");
    if (!folder.isEmpty())
        picture_.save(QDir(folder).filePath(name + ".png"));
}

} // namespace velmora::test
