// A printed sheet, read back from the PDF file that it went to. Places are twips from the upper
// left corner of the paper, as on the printer.
#pragma once

#include <QImage>
#include <QPointF>
#include <QSizeF>
#include <QString>
#include <functional>
#include <vector>

namespace velmora::test {

class PrintedSheet {
  public:
    /// Takes the picture by pdftoppm. Throws std::runtime_error when that fails or the file has not
    /// exactly one page.
    explicit PrintedSheet(const QString& pdf);

    /// Turned clockwise, as one turns a landscape sheet that comes out of the printer upright.
    [[nodiscard]] PrintedSheet turned() const;

    [[nodiscard]] QSizeF size() const;
    /// The middles of the black strokes that cross the row at `y`, from the left.
    [[nodiscard]] std::vector<double> black_across(double y) const;
    /// The middles of the black strokes that cross the column at `x`, from the top.
    [[nodiscard]] std::vector<double> black_down(double x) const;
    /// The same for red ones.
    [[nodiscard]] std::vector<double> red_across(double y) const;
    [[nodiscard]] std::vector<double> red_down(double x) const;
    /// Every place with red ink.
    [[nodiscard]] std::vector<QPointF> red_places() const;

    /// Keeps the picture where VELMORA_PICTURES names a folder.
    void keep(const QString& name) const;

  private:
    explicit PrintedSheet(QImage picture) : picture_(std::move(picture)) {}

    QImage picture_;
};

} // namespace velmora::test
