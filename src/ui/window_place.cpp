#include "ui/window_place.h"

#include "platform/platform.h"
#include "platform/settings_store.h"

#include <QEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QStringList>
#include <QWidget>
#include <algorithm>
#include <array>

namespace velmora {

namespace {

constexpr std::string_view kSection = "Window";
constexpr std::string_view kKey = "place";
constexpr int kSoon = 300; // milliseconds
constexpr int kSmallest = 100;

int clamped(int value, int least, int most) {
    return std::max(least, std::min(value, most));
}

} // namespace

std::optional<WindowPlace> stored_window_place() {
    const auto text = platform().settings.get(kSection, kKey);
    if (!text)
        return {};
    std::array<int, 5> numbers{};
    const QStringList parts = QString::fromStdString(*text).split(' ');
    bool whole = parts.size() == std::ssize(numbers);
    for (std::size_t i = 0; whole && i < numbers.size(); ++i)
        numbers[i] = parts[static_cast<qsizetype>(i)].toInt(&whole);
    const auto [x, y, width, height, maximized] = numbers;
    if (!whole || width < kSmallest || height < kSmallest)
        return {};
    return WindowPlace{{x, y}, {width, height}, maximized != 0};
}

void store_window_place(const WindowPlace& place) {
    const QString text = QStringLiteral("%1 %2 %3 %4 %5")
                             .arg(place.corner.x())
                             .arg(place.corner.y())
                             .arg(place.size.width())
                             .arg(place.size.height())
                             .arg(place.maximized ? 1 : 0);
    platform().settings.save(kSection, kKey, text.toStdString());
    (void)platform().settings.keep();
}

std::optional<WindowPlace> on_a_screen(const WindowPlace& place) {
    const QScreen* screen = QGuiApplication::screenAt(QRect(place.corner, place.size).center());
    if (screen == nullptr)
        return {};
    const QRect room = screen->availableGeometry();
    WindowPlace result = place;
    result.size = place.size.boundedTo(room.size());
    const QSize beyond = room.size() - result.size;
    result.corner = {clamped(place.corner.x(), room.left(), room.left() + beyond.width()),
                     clamped(place.corner.y(), room.top(), room.top() + beyond.height())};
    return result;
}

WindowPlaceKeeper::WindowPlaceKeeper(QWidget& window, int milliseconds)
    : QObject(&window), window_(window) {
    soon_.setSingleShot(true);
    soon_.setInterval(kSoon);
    connect(&soon_, &QTimer::timeout, this, &WindowPlaceKeeper::store);
    QTimer::singleShot(milliseconds, this, &WindowPlaceKeeper::begin);
}

void WindowPlaceKeeper::begin() {
    kept_ = {window_.pos(), window_.size(), window_.isMaximized()};
    window_.installEventFilter(this);
}

bool WindowPlaceKeeper::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Move || event->type() == QEvent::Resize ||
        event->type() == QEvent::WindowStateChange)
        soon_.start();
    return QObject::eventFilter(watched, event);
}

// A window that fills the screen keeps the place that it goes back to.
void WindowPlaceKeeper::store() {
    if (window_.isMinimized() || window_.isFullScreen())
        return;
    WindowPlace now = kept_;
    now.maximized = window_.isMaximized();
    if (!now.maximized)
        now = {window_.pos(), window_.size(), false};
    if (now == kept_)
        return;
    kept_ = now;
    store_window_place(now);
}

} // namespace velmora
