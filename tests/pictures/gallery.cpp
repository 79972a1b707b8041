#include "pictures/gallery.h"

#include "pictures/stage.h"
#include "toolkit/qt_text.h"
#include "ui/window_registry.h"

#include <QApplication>
#include <QDir>
#include <QMenu>
#include <QPixmap>
#include <QScreen>
#include <QStyle>
#include <QTabWidget>
#include <cstdio>
#include <vector>

namespace velmora::pictures {

namespace {

constexpr QSize kMainSize(1180, 780);

/// Another face of a window, behind a click on one of its controls.
struct Face {
    std::string_view window;
    std::string_view control;
};
constexpr Face kFaces[] = {{"New_Dat", "SSOpt_create"}, {"Scale_xy", "Opt_percent"}};
/// Another one, behind a text typed into a box.
struct Filled {
    std::string_view window;
    std::string_view box;
    std::string_view text;
};
constexpr Filled kFilled[] = {{"seltexto", "char", "Ala ñ 28 %"}};

QPalette dark_palette() {
    const QColor ground("#2b2f36");
    const QColor text("#e6e8eb");
    const QColor quiet("#82878f");
    QPalette palette(ground);
    palette.setColor(QPalette::Window, ground);
    palette.setColor(QPalette::WindowText, text);
    palette.setColor(QPalette::Base, QColor("#1f2227"));
    palette.setColor(QPalette::AlternateBase, ground);
    palette.setColor(QPalette::Text, text);
    palette.setColor(QPalette::Button, QColor("#353a42"));
    palette.setColor(QPalette::ButtonText, text);
    palette.setColor(QPalette::ToolTipBase, QColor("#1f2227"));
    palette.setColor(QPalette::ToolTipText, text);
    palette.setColor(QPalette::PlaceholderText, quiet);
    palette.setColor(QPalette::Link, QColor("#6cb6ff"));
    palette.setColor(QPalette::Highlight, QColor("#2f6fb5"));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, quiet);
    return palette;
}

void apply(Theme theme) {
    QApplication::setPalette(theme == Theme::dark ? dark_palette()
                                                  : QApplication::style()->standardPalette());
}

/// Takes the pictures of one language and theme.
class Camera {
  public:
    Camera(QString folder, std::string_view language, Theme theme)
        : folder_(std::move(folder)), language_(language), theme_(theme), stage_(language) {}

    bool run() {
        take("intro", stage_.window("intro"));
        stage_.open_main();
        if (QWidget* main = stage_.window("Velmora"))
            main->resize(kMainSize);
        Stage::settle();
        for (const std::string_view name : window_names())
            if (name != "intro")
                take_window(name);
        take_menus();
        for (const std::string& fault : stage_.faults())
            fail(QString::fromStdString("run-time error " + fault));
        return well_;
    }

  private:
    void take_window(std::string_view name) {
        const QString page = qt_text(name);
        QWidget* shown = name == "ver_corte"  ? stage_.show_cut()
                         : name == "importar" ? stage_.show_import()
                                              : stage_.show(name);
        take_tabs(page, shown);
        for (const Face& face : kFaces) {
            if (face.window != name)
                continue;
            stage_.click(name, face.control);
            take(page + "-" + QString::fromUtf8(face.control.data()), shown);
        }
        for (const Filled& filled : kFilled) {
            if (filled.window != name)
                continue;
            stage_.fill(name, filled.box, filled.text);
            take(page + "-" + QString::fromUtf8(filled.box.data()), shown);
        }
        if (name != "Velmora")
            stage_.unload(name);
    }
    void take_tabs(const QString& page, QWidget* shown) {
        auto* tabs = shown == nullptr ? nullptr : shown->findChild<QTabWidget*>();
        if (tabs == nullptr)
            return take(page, shown);
        for (int tab = 0; tab < tabs->count(); ++tab) {
            tabs->setCurrentIndex(tab);
            Stage::settle();
            take(page + "-" + QString::number(tab), shown);
        }
    }
    void take_menus() {
        for (QMenu* menu : stage_.window("Velmora")->findChildren<QMenu*>()) {
            if (menu->objectName().isEmpty())
                continue; // the toolkit's own
            menu->popup({0, 0});
            Stage::settle();
            take("menu-" + menu->objectName(), menu);
            menu->close();
            Stage::settle();
        }
    }
    void take(const QString& page, QWidget* shown) {
        const QString file = file_name(page, language_, theme_, present_scale());
        if (shown == nullptr || !shown->grab().save(QDir(folder_).filePath(file)))
            fail(file + " cannot be taken");
    }
    void fail(const QString& what) {
        well_ = false;
        std::fprintf(stderr, "pictures: %s\n", qPrintable(what));
    }

    QString folder_;
    std::string_view language_;
    Theme theme_;
    Stage stage_;
    bool well_ = true;
};

} // namespace

QString name_of(Theme theme) {
    return theme == Theme::dark ? "dark" : "light";
}

int present_scale() {
    return qRound(QGuiApplication::primaryScreen()->devicePixelRatio() * 100);
}

QString file_name(const QString& page, std::string_view language, Theme theme, int scale) {
    return QString("%1.%2.%3.%4.png").arg(page, qt_text(language), name_of(theme)).arg(scale);
}

bool take_pictures(const QString& folder, std::string_view language, Theme theme) {
    apply(theme);
    return Camera(folder, language, theme).run();
}

} // namespace velmora::pictures
