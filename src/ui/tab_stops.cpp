#include "ui/tab_stops.h"

#include <QApplication>

namespace velmora {

TabStops::TabStops(QObject& parent, const std::vector<QWidget*>& stops)
    : QObject(&parent), stops_(stops.begin(), stops.end()) {
    // The group narrows the order when one of its buttons takes the focus; this comes after that.
    connect(qApp, &QApplication::focusChanged, this, &TabStops::restore);
    restore();
}

void TabStops::restore() {
    for (const auto& stop : stops_)
        if (stop)
            stop->setFocusPolicy(Qt::StrongFocus);
}

} // namespace velmora
