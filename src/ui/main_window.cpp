#include "ui/main_window.h"

#include "commands/handlers.h"
#include "document/coord_list.h"
#include "document/windows/velmora.h"
#include "forms/velmora.h"
#include "ui/file_drop.h"
#include "ui/program_style.h"
#include "ui/shortcuts_first.h"
#include "ui/window_place.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QScreen>
#include <QTimer>
#include <QWindow>
#include <tuple>

namespace velmora {

namespace {

constexpr QSize kSizeAtStart(1180, 780);
constexpr int kListShare = 280; // of the width at start
constexpr int kBeside = 500;    // what the floating windows take at the right, with their gaps
constexpr int kTimerInterval = 10;

bool is_use(const QEvent& event) {
    return event.type() == QEvent::KeyPress || event.type() == QEvent::MouseButtonPress;
}

/// A control that has nothing to show.
void add_part(QObject* part, const char* name) {
    part->setObjectName(name);
}

} // namespace

MainWindow::MainWindow(EventSink& events, ShownImage& canvas)
    : FormWindow(events), window_(static_cast<QMainWindow&>(widget())),
      commands_(window_,
                [&events](void (*handler)()) {
                    events.run([handler] {
                        state::Velmora.lbl_notice.clear();
                        handler();
                    });
                }),
      status_(*new ElidedLabel(ui.StatusBar1)), pbar1_(*new QProgressBar(ui.StatusBar1)),
      pbar2_(*new QProgressBar(ui.StatusBar1)), position_(*new QLabel(&window_)),
      canvas_(canvas, *ui.pic, *ui.lbl_xyfloat, *ui.SSScroll),
      marks_({*ui.pic, *ui.SSScroll, *ui.ruler_along, *ui.ruler_upright, position_}) {
    commands_.add_menus();
    commands_.add_bars(*ui.bands);
    ui.bands->addStretch(1);
    ui.split->setStretchFactor(1, 1);
    ui.split->setSizes({kListShare, kSizeAtStart.width() - kListShare});
    ui.Lst_Coords->show_rows_of(state::Velmora);
    // The panel round the canvas shows its focus: on the canvas itself every dot has its meaning.
    // A list without a chosen row has nothing else to show it by.
    for (QWidget* framed :
         {static_cast<QWidget*>(ui.SSPanel1), static_cast<QWidget*>(ui.Lst_Coords)}) {
        framed->setProperty(kFocusRing, true);
        QObject::connect(qApp, &QApplication::focusChanged, framed, [framed] { framed->update(); });
    }
    add_parts_without_a_look();
    add_status_bar();
    add_position();
    bind();
    wire();
    list_in_form_order();
}

void MainWindow::add_parts_without_a_look() {
    auto* timer = new QTimer(&window_); // idle, on purpose
    timer->setInterval(kTimerInterval);
    add_part(timer, "Timer1");
    add_part(new QObject(&window_), "CommonDialog1");
    add_part(new QObject(&window_), "ImageList2");
}

void MainWindow::add_status_bar() {
    ui.StatusBar1->addWidget(&status_, 1);
    for (auto [bar, name, tip] : {std::tuple(&pbar1_, "Pbar1", "Progreso"),
                                  std::tuple(&pbar2_, "pbar2", "Progreso de la lectura")}) {
        bar->setObjectName(name);
        bar->setToolTip(tip);
        bar->setAccessibleName(tip);
        bar->setTextVisible(false);
        bar->setFixedWidth(bar->fontMetrics().horizontalAdvance('0') * 12);
        bar->setMaximumHeight(bar->fontMetrics().height());
        ui.StatusBar1->addPermanentWidget(bar);
    }
}

// In a holder: the panels of the status bar are the logic's, one label each.
void MainWindow::add_position() {
    const QString tip = "Posición del puntero sobre la forma";
    position_.setObjectName("lbl_position");
    position_.setToolTip(tip);
    position_.setAccessibleName(tip);
    position_.setMinimumWidth(
        position_.fontMetrics().horizontalAdvance("X -0000.000  Y -0000.000"));
    auto* holder = new QWidget(ui.StatusBar1);
    auto* row = new QHBoxLayout(holder);
    row->setContentsMargins({});
    row->addWidget(&position_);
    ui.StatusBar1->addPermanentWidget(holder);
}

void MainWindow::bind() {
    VelmoraWindow& state = state::Velmora;
    bindings().title(window_, state.Caption);
    bindings().text(*ui.TxtDat_File, state.TxtDat_File);
    bindings().text(*ui.TxtDescDat, state.TxtDescDat);
    bindings().label(status_, state.StatusBar1);
    bindings().label(*ui.lbl_notice, state.lbl_notice);
    bindings().shows<bool>([&state] { return !state.lbl_notice.empty(); },
                           [this](bool told) { ui.lbl_notice->setVisible(told); });
    bindings().progress(pbar1_, state.Pbar1);
    bindings().progress(pbar2_, state.pbar2);
    bindings().each_push([this, &state] { commands_.show(state); });
    bindings().shows<std::uint64_t>([&state] { return state.Lst_Coords_fill; },
                                    [this](std::uint64_t) { ui.Lst_Coords->start_over(); });
    canvas_.bind(bindings(), state);
    marks_.bind(bindings());
}

void MainWindow::wire() {
    for (QLineEdit* box : {ui.TxtDat_File, ui.TxtDescDat})
        new ShortcutsFirst(*box);
    new FileDrop(window_, [this](const std::string& path) {
        if (events().idle())
            events().run([&path] { open_named(path); });
    });
    canvas_.wire([this](const Handler& handler) { events().run(handler); });
    connect(ui.Lst_Coords, &CoordListView::row_clicked, this, [this](const QString& row) {
        events().run([text = row.toStdString()] { Lst_Coords_Click(text); });
    });
    connect(ui.Lst_Coords, &CoordListView::row_reached, this, [this](const QString& row) {
        events().run([text = row.toStdString()] { Lst_Coords_Key(text); });
    });
}

void MainWindow::list_in_form_order() {
    std::vector<std::string> names = {"pic",        "lbl_xyfloat", "Lst_Coords",
                                      "TxtDescDat", "TxtDat_File", "Timer1"};
    names.insert(names.end(), commands_.menu_controls().begin(), commands_.menu_controls().end());
    for (const char* name :
         {"SSPanel1", "SSScroll", "CoolBar1", "TBar4", "TBar3", "TBar2", "CommonDialog1",
          "StatusBar1", "Pbar1", "pbar2", "ImageList2", "lbl_position"})
        names.emplace_back(name);
    list_controls(names);
}

void MainWindow::Load() {
    Velmora_Load();
}

void MainWindow::Activate() {
    Velmora_Activate();
}

void MainWindow::QueryUnload() {
    Velmora_QueryUnload();
}

void MainWindow::place() {
    stored_place_ = take_stored_place();
    if (!stored_place_) {
        window_.resize(kSizeAtStart);
        fit_to_screen();
    }
    (void)window_.winId(); // makes the native window, where keys and presses come in first
    window_.windowHandle()->installEventFilter(this);
}

bool MainWindow::take_stored_place() {
    const auto stored = stored_window_place();
    const auto place = stored ? on_a_screen(*stored) : std::nullopt;
    if (!place)
        return false;
    window_.resize(place->size);
    window_.move(place->corner);
    if (place->maximized)
        window_.setWindowState(Qt::WindowMaximized);
    return true;
}

void MainWindow::take_in_the_frame() {
    if (!stored_place_)
        return fit_to_screen();
    if (window_.isMaximized())
        return;
    const QRect frame = window_.frameGeometry();
    const QSize around = frame.size() - window_.size();
    if (const auto place = on_a_screen({frame.topLeft(), frame.size()})) {
        window_.resize(place->size - around);
        window_.move(place->corner);
    }
}

void MainWindow::fit_to_screen() {
    const QRect screen = window_.screen()->availableGeometry();
    const QSize frame = window_.frameGeometry().size() - window_.size();
    window_.resize(window_.size().boundedTo(screen.size() - frame));
    QRect taken(QPoint(), window_.size() + frame);
    if (taken.width() + kBeside <= screen.width())
        taken.setWidth(taken.width() + kBeside);
    taken.moveCenter(screen.center());
    window_.move(taken.topLeft());
}

void MainWindow::status_changed() {
    status_.setText(QString::fromStdString(state::Velmora.StatusBar1));
    if (status_.isVisible())
        status_.repaint();
}

bool MainWindow::eventFilter(QObject* watched, QEvent* event) {
    if (watched == &window_ && event->type() == QEvent::PaletteChange)
        commands_.draw_icons();
    // The desktop's frame is there when the window is painted; before, nobody knows its size.
    if (watched == &window_ && event->type() == QEvent::Paint && !std::exchange(looked_at_, true) &&
        !window_.screen()->availableGeometry().contains(window_.frameGeometry()))
        take_in_the_frame();
    if (watched == window_.windowHandle() && is_use(*event)) {
        if (!state::Velmora.lbl_notice.empty())
            events().run([] { state::Velmora.lbl_notice.clear(); });
        events().activate(name());
    }
    if (watched == &window_ && event->type() == QEvent::WindowStateChange)
        state::Velmora.minimized = window_.isMinimized();
    return Window::eventFilter(watched, event);
}

} // namespace velmora
