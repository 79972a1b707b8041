#include "ui/intro_screen.h"

#include "document/state/program.h"
#include "document/windows/intro.h"
#include "forms/intro.h"
#include "platform/platform.h"
#include "platform/program_windows.h"
#include "ui/icons.h"
#include "ui/translations.h"

#include <QTimer>
#include <utility>

namespace velmora {

namespace {

constexpr int kTimerInterval = 5000;

void set_look(QLabel& label, double size_factor, const QColor& colour) {
    QFont font = label.font();
    font.setPointSizeF(font.pointSizeF() * size_factor);
    label.setFont(font);
    QPalette palette = label.palette();
    palette.setColor(QPalette::WindowText, colour);
    label.setPalette(palette);
}

} // namespace

IntroScreen::IntroScreen(EventSink& events, LoadWindow load)
    : FormWindow(events), load_(std::move(load)), timer_(*new QTimer(&widget())) {
    widget().setWindowFlags(Qt::SplashScreen | Qt::FramelessWindowHint);
    timer_.setObjectName("Timer1");
    timer_.setInterval(kTimerInterval);
    connect(&timer_, &QTimer::timeout, this, [this] { leave(); });
    draw_texts();

    ui.Image1->set_picture(splash_picture());
    connect(ui.Image1, &PictureLabel::clicked, this, [this] { leave(); });
    // The other texts hand a click on to the picture; the build number does not take part.
    ui.lblsubver->setAttribute(Qt::WA_NoMousePropagation);

    bindings().label(*ui.lblVer, state::intro.lblVer);
    bindings().label(*ui.lblsubver, state::intro.lblsubver);
    list_controls({"Timer1", "Image1", "Label1", "lblVelmora", "lblVer", "lblsubver"});
}

void IntroScreen::draw_texts() {
    const QColor bright("#ffffff");
    const QColor quiet("#b9cfe6");
    set_look(*ui.lblVelmora, 3.2, bright);
    set_look(*ui.Label1, 1.05, quiet);
    set_look(*ui.lblVer, 1.05, bright);
    set_look(*ui.lblsubver, 1.05, quiet);
}

void IntroScreen::Load() {
    intro_Load();
    install_translations(state::program.Idioma);
    timer_.start();
}

void IntroScreen::leave() {
    timer_.stop();
    events().run([this] {
        load_("Velmora");
        platform().windows.unload("intro");
        platform().windows.show("Velmora");
    });
}

} // namespace velmora
