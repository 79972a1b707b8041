// What the side windows are placed beside, and where each of them was.
#pragma once

#include <QPoint>
#include <QSize>
#include <functional>
#include <map>
#include <string>

class QWidget;

namespace velmora {

/// Where a side window was when it was unloaded, and the main window's size then.
struct SidePlace {
    QPoint place;
    QSize main;
};

struct SideGround {
    std::function<QWidget*()> main_window;                ///< gives nullptr while it is not loaded
    std::map<std::string, SidePlace, std::less<>> places; ///< of those unloaded, by name
};

} // namespace velmora
