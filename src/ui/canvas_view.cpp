#include "ui/canvas_view.h"

#include "canvas/colours.h"
#include "canvas/keys.h"
#include "canvas/pointer.h"
#include "canvas/surface.h"
#include "canvas/wheel_zoom.h"
#include "commands/handlers.h"
#include "document/pointer_shape.h"
#include "document/refresh.h"
#include "platform/platform.h"
#include "toolkit/shown_image.h"
#include "ui/binding.h"
#include "ui/canvas_scroll.h"
#include "ui/pic_widget.h"

#include <QLabel>
#include <QScrollBar>
#include <cmath>

namespace velmora {

namespace {

constexpr int kCtrl = 2;
constexpr int kSpace = 32;
constexpr int kMiddleButton = 4;

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

/// What a fit or a zoom leaves round the canvas has nearly its colour: the edge can be told.
void show_ground(QWidget& viewport, std::uint32_t colour) {
    constexpr int kEdge = 104; // per cent
    QPalette palette = viewport.palette();
    palette.setColor(viewport.backgroundRole(), QColor(screen_rgb(colour)).darker(kEdge));
    viewport.setPalette(palette);
    viewport.setAutoFillBackground(true);
}

} // namespace

CanvasView::CanvasView(ShownImage& image, PicWidget& pic, QLabel& lbl_xyfloat, CanvasScroll& scroll)
    : image_(image), pic_(pic), label_(lbl_xyfloat), scroll_(scroll),
      hand_(scroll, [this] { user_moved_view(); }) {
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
                                  [this](std::uint32_t colour) {
                                      platform().pic.set_back_color(colour);
                                      platform().pic.present();
                                      show_ground(*scroll_.viewport(), colour);
                                  });
    bindings.shows<int>([&state] { return state.pic_MousePointer; },
                        [this](int pointer) {
                            pointer_ = pointer;
                            show_cursor();
                        });
    bind_view(bindings, state);
    bind_label(bindings, state);
}

void CanvasView::bind_view(Bindings& bindings, VelmoraWindow& state) {
    bindings.shows<std::uint64_t>([&state] { return state.SSScroll_moves; },
                                  [this, &state](std::uint64_t) {
                                      scroll_x_ = state.SSScroll_x;
                                      scroll_y_ = state.SSScroll_y;
                                      middle_ = state.SSScroll_middle;
                                      user_scrolled_ = false;
                                      take_place();
                                  });
    bindings.each_pull([this, &state] { state.SSScroll_visible = visible(); });
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
    wire_pointer();
    wire_keys();
    wire_scroll_bars();
    connect(&scroll_, &CanvasScroll::wheel_zoomed, this, &CanvasView::zoom_by_wheel);
}

void CanvasView::wire_pointer() {
    pic_.pressed = [this](const PointerEvent& at) {
        if (!hand_.takes_press(at))
            dispatch_([at] { pic_MouseDown(at.button, shift_state(at.ctrl), at.x, at.y); });
    };
    pic_.moved = [this](const PointerEvent& at) {
        if (!hand_.takes_move(at))
            dispatch_([at] { pic_MouseMove(at.button, shift_state(at.ctrl), at.x, at.y); });
        show_cursor();
    };
    pic_.released = [this](const PointerEvent& at) {
        if (!hand_.takes_release(at))
            released(at);
        show_cursor();
    };
}

// What the logic does with the middle button can lay the view out anew: a dragged view stays where
// it was dragged to.
void CanvasView::released(const PointerEvent& at) {
    const QPoint dragged_to = scroll_.place();
    dispatch_([at] { pic_MouseUp(at.button, shift_state(at.ctrl), at.x, at.y); });
    if (at.button != kMiddleButton)
        return;
    const ViewHand::Ended ended = hand_.let_go();
    if (ended == ViewHand::Ended::double_click)
        dispatch_(mnu_fit_shape);
    if (ended == ViewHand::Ended::drag && scroll_.place() != dragged_to) {
        scroll_.go_to(dragged_to);
        user_moved_view();
    }
}

void CanvasView::wire_keys() {
    pic_.key_down = [this](int key, bool ctrl) {
        if (key == kSpace)
            space(true);
        dispatch_([=] { pic_KeyDown(key, shift_state(ctrl)); });
    };
    pic_.key_up = [this](int key, bool ctrl) {
        if (key == kSpace)
            space(false);
        dispatch_([=] { pic_KeyUp(key, shift_state(ctrl)); });
    };
    // Nothing that shows changes, and the focus goes while handlers run.
    pic_.focus_lost = [this] {
        space(false);
        pic_LostFocus();
    };
    pic_.menu_key = [this] {
        dispatch_(pic_MenuKey);
    };
}

void CanvasView::space(bool down) {
    hand_.space(down);
    show_cursor();
}

void CanvasView::show_cursor() {
    if (hand_.shows())
        pic_.setCursor(hand_.drags() ? Qt::ClosedHandCursor : Qt::OpenHandCursor);
    else if (pointer_ == pointer::up_arrow)
        pic_.setCursor(Qt::UpArrowCursor);
    else
        pic_.unsetCursor();
}

void CanvasView::wire_scroll_bars() {
    for (QScrollBar* bar : {scroll_.horizontalScrollBar(), scroll_.verticalScrollBar()}) {
        connect(bar, &QScrollBar::actionTriggered, this, &CanvasView::user_moved_view);
        // Until the user scrolls, the place that the program chose holds at every size.
        connect(bar, &QScrollBar::rangeChanged, this, [this] {
            if (!user_scrolled_)
                take_place();
        });
    }
}

void CanvasView::take_place() {
    const QPoint place = wanted_place();
    scroll_.reach(place);
    scroll_.go_to(place);
}

QPoint CanvasView::wanted_place() const {
    const QSize seen = scroll_.viewport()->size();
    if (middle_)
        return {static_cast<int>(std::lround(middle_->x - seen.width() / 2.0)),
                static_cast<int>(std::lround(middle_->y - seen.height() / 2.0))};
    const QSize beyond = pic_.size() - seen;
    return {static_cast<int>(std::lround(std::max(0, beyond.width()) * scroll_x_)),
            static_cast<int>(std::lround(std::max(0, beyond.height()) * scroll_y_))};
}

VisibleBox CanvasView::visible() const {
    const QSize seen = scroll_.viewport()->size();
    const QPoint at = scroll_.place();
    return {static_cast<double>(at.x()), static_cast<double>(at.y()),
            static_cast<double>(seen.width()), static_cast<double>(seen.height())};
}

void CanvasView::user_moved_view() {
    user_scrolled_ = true;
    repaint_after_scroll();
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

// All the steps that came by now in one: each costs a whole repaint.
void CanvasView::zoom_by_wheel(int steps, QPoint on_screen) {
    wheel_steps_ += steps;
    wheel_at_ = on_screen;
    if (!std::exchange(zoom_due_, true))
        QMetaObject::invokeMethod(
            this, [this] { zoom_now(); }, Qt::QueuedConnection);
}

// Steps that come while the windows run inside a zoom wait for its end.
void CanvasView::zoom_now() {
    while (const int steps = std::exchange(wheel_steps_, 0)) {
        const QPoint at = pic_.mapFromGlobal(wheel_at_);
        dispatch_([=] {
            zoom_around({static_cast<double>(at.x()), static_cast<double>(at.y())}, steps);
        });
    }
    zoom_due_ = false;
}

} // namespace velmora
