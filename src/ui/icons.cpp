#include "ui/icons.h"

#include "toolkit/qt_text.h"

#include <QPalette>

namespace velmora {

namespace {

constexpr int kSizes[] = {16, 24, 32, 48, 64};
constexpr int kSplashWidths[] = {600, 1200};
constexpr double kSplashShape = 340.0 / 600.0;

bool is_dark(const QPalette& palette) {
    return palette.color(QPalette::Window).lightness() <
           palette.color(QPalette::WindowText).lightness();
}

QIcon icon_of(const QString& folder, const QString& name) {
    QIcon icon;
    for (const int size : kSizes)
        icon.addFile(QStringLiteral(":/icons/%1/%2-%3.png").arg(folder, name).arg(size),
                     QSize(size, size));
    return icon;
}

} // namespace

QIcon tool_icon(std::string_view key, const QPalette& palette) {
    const QString name = qt_text(key);
    return icon_of(is_dark(palette) ? "dark" : "light", name);
}

QIcon app_icon() {
    return icon_of("light", "velmora");
}

QIcon splash_picture() {
    QIcon icon;
    for (const int width : kSplashWidths)
        icon.addFile(QStringLiteral(":/icons/light/splash-%1.png").arg(width),
                     QSize(width, static_cast<int>(width * kSplashShape)));
    return icon;
}

} // namespace velmora
