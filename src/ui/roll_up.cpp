#include "ui/roll_up.h"

#include <QScreen>
#include <QWidget>

namespace velmora {

namespace {
constexpr int kTwipsPerInch = 1440;
constexpr int kGap = 8; // pixels between windows
} // namespace

RollUp::RollUp(QWidget& window, QWidget& content) : window_(window), content_(content) {}

int RollUp::pixels(int twips) const {
    return twips * window_.logicalDpiY() / kTwipsPerInch;
}

void RollUp::set_height(int twips, bool rolled_up) {
    const int needed = content_.sizeHint().width();
    const int width = std::exchange(sized_, true) ? std::max(window_.width(), needed) : needed;
    content_.setVisible(!rolled_up);
    if (rolled_up) {
        window_.setFixedHeight(1); // a window has at least that below its title
        window_.resize(width, 1);
        return;
    }
    window_.setMinimumHeight(0);
    window_.setMaximumHeight(QWIDGETSIZE_MAX);
    const int title = window_.frameGeometry().height() - window_.height();
    window_.resize(width, std::max(pixels(twips) - title, content_.sizeHint().height()));
}

void RollUp::keep_to(const QWidget& main, int row) {
    const QRect frame = main.frameGeometry();
    const QRect screen = main.screen()->availableGeometry();
    const int width = window_.frameGeometry().width();
    const bool room_beside = frame.right() + kGap + width <= screen.right();
    const int left = room_beside ? frame.right() + kGap : frame.right() - width - 4 * kGap;
    const int top = room_beside ? frame.top() : main.geometry().top() + pixels(1800);
    window_.move(left, top + pixels(row));
}

} // namespace velmora
