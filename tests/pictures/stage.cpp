#include "pictures/stage.h"

#include "canvas/pointer.h"
#include "canvas/view.h"
#include "document/refresh.h"
#include "document/session.h"
#include "forms/ajuste.h"
#include "forms/importar.h"
#include "forms/ver_corte.h"
#include "services/messages.h"
#include "support/places.h"
#include "toolkit/qt_text.h"

#include <QAbstractButton>
#include <QAction>
#include <QCoreApplication>
#include <QLineEdit>
#include <filesystem>
#include <fstream>

namespace velmora::pictures {

namespace {

constexpr auto kSample = "raiz.dat";
constexpr auto kShownPath = "/home/ana/alas/raiz.dat"; // the same in every run
constexpr auto kZoom = "750";                          // the whole sample in view
constexpr std::int32_t kSelected = 8;
constexpr std::int32_t kUnderPointer = 20;

// The wing of the guide, in millimetres, and its machine.
constexpr double kRootChord = 240;
constexpr double kTipChord = 160;
constexpr double kOptX = 100;
constexpr double kOptY = 200;
constexpr double kOptZ = 400;
constexpr double kCut = 0.7; // of the way

void enlarge(Array<Pto>& side, double chord, double back) {
    for (Pto& point : side.all()) {
        point.X = point.X * chord + back;
        point.Y *= chord;
    }
}

} // namespace

Stage::Stage(std::string_view idioma) {
    const auto folder = std::filesystem::path(folder_.path().toStdString());
    std::filesystem::copy_file(test::built_database(), folder / "VELMORA.MDB");
    std::filesystem::copy(test::source_dir() / "data/machines", folder / "machines");
    reset_session();
    fill_platform(idioma);
    session.program_folder = folder.string();
    WindowEvents& events = platform_->windows->events;
    events.fault = [this](const RuntimeError& failure) {
        faults_.push_back(std::to_string(failure.number) + " " + failure.what());
    };
    platform_->windows->start();
    settle();
}

Stage::~Stage() {
    close_messages();
    platform_.reset();
    QGuiApplication::restoreOverrideCursor();
}

void Stage::fill_platform(std::string_view idioma) {
    platform_ = std::make_unique<QtPlatform>();
    auto dialogs = std::make_unique<test::RecordingDialogs>();
    dialogs_ = dialogs.get();
    auto settings = std::make_unique<test::MemorySettings>();
    settings->save("Values", "Idioma", idioma);
    settings->save("Values", "Def_Zoom", kZoom);
    settings->save("Values", "sound", "0");
    platform_->dialogs = std::move(dialogs);
    platform_->settings = std::move(settings);
    platform_->shell = std::make_unique<test::RecordingShell>();
    platform_->machine = std::make_unique<test::FixedMachine>();
    platform_->cad = std::make_unique<test::NoCad>();
    platform_->install();
}

void Stage::open_main() {
    QMetaObject::invokeMethod(platform_->windows->control("intro", "Image1"), "clicked");
    settle();
    open_outline();
}

void Stage::open_outline() {
    pick(kSample);
    click("Velmora", "mnu_openfile");
    platform_->windows->run([] {
        session.Velmora.TxtDat_File = kShownPath;
        session.PtoSel = kSelected;
        const Pto& point = Forma.Pto[kUnderPointer];
        pic_MouseMove(0, 0, static_cast<float>(canvas_x(point.X)),
                      static_cast<float>(canvas_y(point.Y)));
        Dibuja();
    });
    settle();
}

QWidget* Stage::show(std::string_view name) {
    platform_->windows->run([&] { platform_->windows->show(name); });
    settle();
    platform_->windows->activate(name);
    settle();
    return window(name);
}

void Stage::match_sides() {
    show("ajuste");
    pick("raiz.dat");
    click("ajuste", "cmd_selA");
    pick("punta.dat");
    click("ajuste", "cmd_selB");
    platform_->windows->run([] {
        enlarge(session.PtosA, kRootChord, 0);
        enlarge(session.PtosB, kTipChord, kRootChord - kTipChord);
        session.OptX = kOptX;
        session.OptY = kOptY;
        session.OptZ = kOptZ;
        Cmd_Ajuste_Click();
    });
    unload("ajuste");
}

QWidget* Stage::show_cut() {
    match_sides();
    QWidget* shown = show("ver_corte");
    platform_->windows->run([] {
        session.ver_corte.Txt_Files = "raiz2.DAT, punta2.DAT"; // the same in every run
        ver_corte_go_to_share(kCut);
    });
    settle();
    return shown;
}

QWidget* Stage::show_import() {
    constexpr std::string_view drawing =
        R"(<svg xmlns="http://www.w3.org/2000/svg" width="240mm" height="90mm" viewBox="0 0 240 90">
<path d="M230 45 C170 10 60 5 10 45 C60 70 170 60 230 45 Z"/>
<circle cx="70" cy="42" r="9"/><path d="M100 40 L190 42"/></svg>)";
    const std::string path = (folder_.path() + "/ala.svg").toStdString();
    std::ofstream(path, std::ios::binary) << drawing;
    QWidget* shown = show("importar");
    platform_->windows->run([&path] {
        importar_take_file(path);
        session.importar.Txt_File = "/home/ana/alas/ala.svg"; // the same in every run
    });
    settle();
    return shown;
}

void Stage::unload(std::string_view name) {
    platform_->windows->run([&] { platform_->windows->unload(name); });
    settle();
}

void Stage::click(std::string_view window, std::string_view name) {
    QObject* found = platform_->windows->control(window, name);
    if (auto* action = qobject_cast<QAction*>(found))
        action->trigger();
    if (auto* button = qobject_cast<QAbstractButton*>(found))
        button->click();
    settle();
}

void Stage::pick(const std::string& sample) {
    const auto copy = std::filesystem::path(folder_.path().toStdString()) / sample;
    std::filesystem::copy_file(test::source_dir() / "data/samples" / sample, copy,
                               std::filesystem::copy_options::overwrite_existing);
    dialogs_->paths = {copy.string()};
}

void Stage::fill(std::string_view window, std::string_view name, std::string_view text) {
    if (auto* box = qobject_cast<QLineEdit*>(platform_->windows->control(window, name)))
        box->setText(qt_text(text));
    settle();
}

QWidget* Stage::window(std::string_view name) const {
    return platform_->windows->window(name);
}

void Stage::settle() {
    constexpr int rounds = 5;
    for (int round = 0; round < rounds; ++round) {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

} // namespace velmora::pictures
