#include "ui/canvas_view.h"

#include "canvas/colours.h"
#include "canvas/keys.h"
#include "canvas/pointer.h"
#include "canvas/surface.h"
#include "document/pointer_shape.h"
#include "document/refresh.h"
#include "platform/platform.h"
#include "toolkit/shown_image.h"
#include "ui/binding.h"
#include "ui/pic_widget.h"

#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>

namespace velmora {

namespace {

constexpr int kCtrl = 2;

int shift_state(bool ctrl) {
    return ctrl ? kCtrl : 0;
}

/// The label's ground is one that its text stands out on.
void set_label_colours(QLabel& label, std::uint32_t colour) {
    const QColor text(screen_rgb(colour));
    const QColor ground = text.lightness() < 128 ? QColor("#fffbe0") : QColor("#2b2f36");
    QPalette palette = label.palette();
    palette.setColor(QPalette::WindowText, text);
    palette.setColor(QPalette::Window, ground);
    label.setPalette(palette);
}

int share_of(const QScrollBar& bar, double share) {
    return static_cast<int>(std::lround(bar.maximum() * share));
}

} // namespace

CanvasView::CanvasView(ShownImage& image, PicWidget& pic, QLabel& lbl_xyfloat, QScrollArea& scroll)
    : image_(image), pic_(pic), label_(lbl_xyfloat), scroll_(scroll) {
    label_.setAutoFillBackground(true);
    label_.setAttribute(Qt::WA_TransparentForMouseEvents);
    pic_.show_image(image_.image());
    image_.changed = [this](const QRect& part) {
        pic_.update(part);
    };
}

CanvasView::~CanvasView() {
    image_.changed = {};
}

void CanvasView::bind(Bindings& bindings, VelmoraWindow& state) {
    bindings.shows<std::uint32_t>([&state] { return state.pic_BackColor; },
                                  [](std::uint32_t colour) {
                                      platform().pic.set_back_color(colour);
                                      platform().pic.present();
                                  });
    bindings.shows<int>([&state] { return state.pic_MousePointer; },
                        [this](int pointer) {
                            if (pointer == pointer::up_arrow)
                                pic_.setCursor(Qt::UpArrowCursor);
                            else
                                pic_.unsetCursor();
                        });
    bindings.shows<std::uint64_t>(
        [&state] { return state.SSScroll_moves; },
        [this, &state](std::uint64_t) { scroll_to(state.SSScroll_x, state.SSScroll_y); });
    bind_label(bindings, state);
}

void CanvasView::bind_label(Bindings& bindings, VelmoraWindow& state) {
    bindings.label(label_, state.lbl_xyfloat);
    bindings.shows<std::uint32_t>(
        [&state] { return state.lbl_xyfloat_ForeColor; },
        [this](std::uint32_t colour) { set_label_colours(label_, colour); });
    bindings.each_push([this, &state] {
        label_.adjustSize();
        label_.move(static_cast<int>(state.lbl_xyfloat_Left),
                    static_cast<int>(state.lbl_xyfloat_Top));
        label_.setVisible(state.lbl_xyfloat_visible);
    });
}

void CanvasView::wire(Dispatch dispatch) {
    dispatch_ = std::move(dispatch);
    pic_.pressed = [this](const PointerEvent& at) {
        dispatch_([at] { pic_MouseDown(at.button, shift_state(at.ctrl), at.x, at.y); });
    };
    pic_.moved = [this](const PointerEvent& at) {
        dispatch_([at] { pic_MouseMove(at.button, shift_state(at.ctrl), at.x, at.y); });
    };
    pic_.released = [this](const PointerEvent& at) {
        dispatch_([at] { pic_MouseUp(at.button, shift_state(at.ctrl), at.x, at.y); });
    };
    pic_.key_down = [this](int key, bool ctrl) {
        dispatch_([=] { pic_KeyDown(key, shift_state(ctrl)); });
    };
    pic_.key_up = [this](int key, bool ctrl) {
        dispatch_([=] { pic_KeyUp(key, shift_state(ctrl)); });
    };
    // Nothing that shows changes, and the focus goes while handlers run.
    pic_.focus_lost = pic_LostFocus;
    pic_.menu_key = [this] {
        dispatch_(pic_MenuKey);
    };
    wire_scroll_bars();
}

void CanvasView::wire_scroll_bars() {
    for (QScrollBar* bar : {scroll_.horizontalScrollBar(), scroll_.verticalScrollBar()}) {
        connect(bar, &QScrollBar::actionTriggered, this, [this] {
            user_scrolled_ = true;
            repaint_after_scroll();
        });
        // Until the user scrolls, the place that the program chose holds at every size.
        connect(bar, &QScrollBar::rangeChanged, this, [this] {
            if (!user_scrolled_)
                scroll_to(scroll_x_, scroll_y_);
        });
    }
}

void CanvasView::scroll_to(double x, double y) {
    scroll_x_ = x;
    scroll_y_ = y;
    user_scrolled_ = false;
    QScrollBar* horizontal = scroll_.horizontalScrollBar();
    QScrollBar* vertical = scroll_.verticalScrollBar();
    horizontal->setValue(share_of(*horizontal, x));
    vertical->setValue(share_of(*vertical, y));
}

// One repaint for all the steps that a turn of the wheel makes.
void CanvasView::repaint_after_scroll() {
    if (std::exchange(repaint_due_, true))
        return;
    QMetaObject::invokeMethod(
        this,
        [this] {
            repaint_due_ = false;
            dispatch_([] { Dibuja_unless_NoRedraw(); });
        },
        Qt::QueuedConnection);
}

} // namespace velmora
