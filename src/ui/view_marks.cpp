#include "ui/view_marks.h"

#include "canvas/position.h"
#include "canvas/view.h"
#include "document/state/view.h"
#include "document/state/view_choices.h"
#include "ui/binding.h"
#include "ui/canvas_scroll.h"
#include "ui/pic_widget.h"
#include "ui/ruler.h"

#include <QLabel>
#include <QMouseEvent>
#include <QScrollBar>

namespace velmora {

ViewMarks::ViewMarks(const Parts& parts) : parts_(parts) {
    parts_.upright.set_upright(true);
    parts_.pic.installEventFilter(this);
    for (QScrollBar* bar :
         {parts_.scroll.horizontalScrollBar(), parts_.scroll.verticalScrollBar()}) {
        connect(bar, &QScrollBar::valueChanged, this, &ViewMarks::show_all);
        connect(bar, &QScrollBar::rangeChanged, this, &ViewMarks::show_all);
    }
}

void ViewMarks::bind(Bindings& bindings) {
    bindings.shows<bool>([] { return state::view_choices.ShowRulers != False; },
                         [this](bool shown) {
                             parts_.along.setVisible(shown);
                             parts_.upright.setVisible(shown);
                         });
    bindings.shows<bool>([] { return state::view_choices.ShowPosition != False; },
                         [this](bool shown) { parts_.position.setVisible(shown); });
    bindings.each_push([this] { show_all(); });
}

bool ViewMarks::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseMove)
        pointer_ = static_cast<QMouseEvent*>(event)->globalPosition().toPoint();
    else if (event->type() == QEvent::Leave)
        pointer_.reset();
    else
        return QObject::eventFilter(watched, event);
    show_all();
    return false;
}

void ViewMarks::show_all() {
    std::optional<QPoint> pointer;
    if (pointer_)
        pointer = parts_.pic.mapFromGlobal(*pointer_);
    show_rulers(pointer);
    parts_.position.setText(
        pointer ? QString::fromStdString(position_text(
                      {static_cast<double>(pointer->x()), static_cast<double>(pointer->y())}))
                : QString());
}

void ViewMarks::show_rulers(std::optional<QPoint> pointer) {
    const bool drawn = picture_shown() && state::view.ZoomFactor > 0;
    const Spot origin = drawn ? origin_seen() : Spot{};
    const QPoint place = parts_.scroll.place();
    const QSize seen = parts_.scroll.viewport()->size();
    RulerView along{drawn, state::view.ZoomFactor, origin.x - place.x(), seen.width()};
    RulerView upright{drawn, state::view.ZoomFactor, origin.y - place.y(), seen.height()};
    if (pointer) {
        along.pointer = pointer->x() - place.x();
        upright.pointer = pointer->y() - place.y();
    }
    parts_.along.show_view(along);
    parts_.upright.show_view(upright);
}

} // namespace velmora
