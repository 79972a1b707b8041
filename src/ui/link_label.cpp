#include "ui/link_label.h"

#include <QApplication>
#include <QEvent>

namespace velmora {

LinkLabel::LinkLabel(QWidget* parent) : ClickLabel(parent) {
    QFont underlined = font();
    underlined.setUnderline(true);
    setFont(underlined);
    take_link_colour();
}

void LinkLabel::changeEvent(QEvent* event) {
    ClickLabel::changeEvent(event);
    if (event->type() == QEvent::ApplicationPaletteChange)
        take_link_colour();
}

void LinkLabel::take_link_colour() {
    QPalette own = palette();
    own.setColor(QPalette::WindowText, QApplication::palette().color(QPalette::Link));
    setPalette(own);
}

} // namespace velmora
