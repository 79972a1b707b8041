#include "pictures/guide_pictures.h"

#include "pictures/stage.h"
#include "services/guide.h"

#include <QDir>
#include <QPixmap>
#include <QWidget>
#include <cstdio>

namespace velmora::pictures {

namespace {

constexpr QSize kMainSize(1180, 780);
constexpr int kWidth = 640;

class Page {
  public:
    Page(const QString& folder, std::string_view language) : stage_(language) {
        stage_.open_main();
        folder_.setPath(QDir(folder).filePath(QString::fromStdString(guide_language()) + "/img"));
        QDir().mkpath(folder_.path());
    }

    bool run() {
        stage_.window("Velmora")->resize(kMainSize);
        take("ventana", stage_.window("Velmora"));
        scaling();
        take("lados", sides());
        take("distancias", distances());
        stage_.unload("ajuste_opt");
        take("corte", stage_.show_cut());
        return well_ && stage_.faults().empty();
    }

  private:
    void scaling() {
        QWidget* shown = stage_.show("Scale_xy");
        stage_.click("Scale_xy", "Opt_percent");
        stage_.fill("Scale_xy", "txt_percent_x", "24000");
        stage_.fill("Scale_xy", "txt_percent_y", "24000");
        take("escalar", shown);
        stage_.unload("Scale_xy");
    }
    QWidget* sides() {
        QWidget* shown = stage_.show("ajuste");
        stage_.pick("raiz.dat");
        stage_.click("ajuste", "cmd_selA");
        stage_.pick("punta.dat");
        stage_.click("ajuste", "cmd_selB");
        stage_.fill("ajuste", "txt_fileA", "/home/ana/alas/raiz.dat");
        stage_.fill("ajuste", "Txt_FileB", "/home/ana/alas/punta.dat");
        return shown;
    }
    QWidget* distances() {
        QWidget* shown = stage_.show("ajuste_opt");
        stage_.fill("ajuste_opt", "txt_X", "100");
        stage_.fill("ajuste_opt", "txt_Y", "200");
        stage_.fill("ajuste_opt", "txt_Z", "400");
        return shown;
    }
    void take(const char* name, QWidget* shown) {
        Stage::settle();
        QImage image = shown == nullptr ? QImage() : shown->grab().toImage();
        if (image.width() > kWidth)
            image = image.scaledToWidth(kWidth, Qt::SmoothTransformation);
        const QString file = folder_.filePath(QString(name) + ".png");
        if (!image.convertToFormat(QImage::Format_RGB32).save(file)) {
            std::fprintf(stderr, "pictures: %s cannot be taken\n", qPrintable(file));
            well_ = false;
        }
    }

    Stage stage_;
    QDir folder_;
    bool well_ = true;
};

} // namespace

bool take_guide_pictures(const QString& folder, std::string_view language) {
    return Page(folder, language).run();
}

} // namespace velmora::pictures
