#include "adapters/qt/qt_printer.h"

#include "canvas/colours.h"
#include "runtime/error.h"
#include "toolkit/line_clip.h"

#include <QCoreApplication>
#include <QPainter>
#include <QPrinter>
#include <QPrinterInfo>
#include <algorithm>
#include <utility>
#include <vector>

namespace velmora {

namespace {

constexpr int kTwipsPerInch = 1440;
constexpr double kPenWidth = 8; ///< twips: fine, and seen at any resolution
constexpr QSizeF kA4(11900, 16840);

struct Rim {
    QPointF centre;
    double radius;
    QColor colour;
};

/// What is printed on a sheet, in twips.
struct Sheet {
    std::vector<QLineF> lines;
    std::vector<Rim> circles;

    [[nodiscard]] bool empty() const { return lines.empty() && circles.empty(); }
};

void paint(QPainter& painter, const Sheet& sheet, const QRectF& paper) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Qt::black, kPenWidth, Qt::SolidLine, Qt::RoundCap));
    for (const QLineF& line : sheet.lines)
        if (const auto seen = part_inside(line, paper))
            painter.drawLine(*seen);
    for (const Rim& rim : sheet.circles) {
        painter.setPen(QPen(rim.colour, kPenWidth));
        painter.drawEllipse(rim.centre, rim.radius, rim.radius);
    }
}

class QtPrinter : public Printer {
  public:
    explicit QtPrinter(OpenPrinter open) : open_(std::move(open)) {}

    void set_Orientation(Orientation orientation) override {
        upright_ = orientation == Orientation::portrait;
        sheet_ = {};
        take_paper();
    }
    [[nodiscard]] double Width() const override { return size_.width(); }
    [[nodiscard]] double Height() const override { return size_.height(); }

    void set_CurrentX(float x) override { x_ = x; }
    void set_CurrentY(float y) override { y_ = y; }
    [[nodiscard]] float CurrentX() const override { return x_; }
    [[nodiscard]] float CurrentY() const override { return y_; }

    void Line(float x1, float y1, float x2, float y2) override {
        sheet_.lines.emplace_back(x1, y1, x2, y2);
        move_to(x2, y2);
    }
    void Circle(float x, float y, float radius, std::uint32_t colour) override {
        const QRectF around(x - radius, y - radius, 2 * radius, 2 * radius);
        if (around.intersects(paper()))
            sheet_.circles.push_back({QPointF(x, y), radius, QColor(screen_rgb(colour))});
        move_to(x, y);
    }

    void EndDoc() override {
        const Sheet sheet = std::exchange(sheet_, {});
        if (sheet.empty())
            return;
        if (device_ == nullptr)
            take_paper();
        const auto device = std::exchange(device_, nullptr);
        QPainter painter;
        if (device == nullptr || !painter.begin(device.get()))
            raise(error::printer);
        paint(painter, sheet, paper());
        if (!painter.end() || device->printerState() == QPrinter::Error)
            raise(error::printer);
    }

  private:
    void take_paper() {
        size_ = upright_ ? kA4 : kA4.transposed();
        device_ = open_();
        if (device_ == nullptr)
            return;
        device_->setResolution(kTwipsPerInch);
        device_->setFullPage(true); // places count from the corner of the paper
        device_->setPageOrientation(upright_ ? QPageLayout::Portrait : QPageLayout::Landscape);
        device_->setDocName(QCoreApplication::applicationName());
        size_ = QSizeF(device_->width(), device_->height());
    }
    [[nodiscard]] QRectF paper() const { return {QPointF(), size_}; }
    void move_to(float x, float y) {
        x_ = x;
        y_ = y;
    }

    OpenPrinter open_;
    std::unique_ptr<QPrinter> device_; ///< of the sheet at hand
    Sheet sheet_;
    bool upright_ = true;
    QSizeF size_ = kA4;
    float x_ = 0;
    float y_ = 0;
};

} // namespace

// A queue can be there without anybody having called it the default.
std::unique_ptr<QPrinter> open_default_printer() {
    QPrinterInfo chosen = QPrinterInfo::defaultPrinter();
    if (chosen.isNull()) {
        const QList<QPrinterInfo> all = QPrinterInfo::availablePrinters();
        if (all.isEmpty())
            return nullptr;
        chosen = all.first();
    }
    return std::make_unique<QPrinter>(chosen, QPrinter::HighResolution);
}

std::unique_ptr<Printer> make_qt_printer() {
    return make_qt_printer(open_default_printer);
}

std::unique_ptr<Printer> make_qt_printer(OpenPrinter open) {
    return std::make_unique<QtPrinter>(std::move(open));
}

} // namespace velmora
