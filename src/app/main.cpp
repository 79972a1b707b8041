#include "app/command_line.h"
#include "app/program_folder.h"
#include "app/qt_platform.h"
#include "app/session_guard.h"
#include "commands/handlers.h"
#include "document/state/program.h"
#include "runtime/paths.h"
#include "ui/program_style.h"
#include "ui/window_place.h"

#include <QApplication>
#include <QTimer>

#include <iostream>

namespace {

constexpr int kUsageFault = 2;

std::vector<std::string> words_of(const QStringList& arguments) {
    std::vector<std::string> words;
    for (const QString& argument : arguments.sliced(1))
        words.push_back(argument.toStdString());
    return words;
}

void choose_folder() {
    const velmora::ProgramFolder folder = velmora::find_program_folder();
    velmora::state::program.program_folder = velmora::runtime::path_text(folder.path);
    for (const auto& file : folder.kept_aside)
        velmora::state::program.kept_aside.push_back(velmora::runtime::path_text(file));
    velmora::state::program.folder_stands_in = folder.stands_in;
}

/// Once the main window is there and nothing asks or runs any more, as the first thing that its
/// user would do.
void open_at_start(velmora::WindowHost& windows, const std::filesystem::path& file) {
    constexpr int kMilliseconds = 50;
    auto* const timer = new QTimer(&windows);
    QObject::connect(timer, &QTimer::timeout, &windows, [&windows, timer, file] {
        if (windows.window("Velmora") == nullptr || !windows.idle())
            return;
        timer->deleteLater();
        timer->stop();
        windows.run([&] { velmora::open_named(velmora::runtime::path_text(file)); });
    });
    timer->start(kMilliseconds);
}

/// From its first showing on, wherever the user puts the main window.
void keep_place_of_main_window(velmora::WindowHost& windows) {
    windows.events.opened = [&windows](const std::string& name) {
        if (name == "Velmora")
            new velmora::WindowPlaceKeeper(*windows.window(name));
    };
}

} // namespace

int main(int argc, char** argv) {
    if (const auto answer = velmora::answer_of({argv + 1, argv + argc})) {
        std::cout << *answer;
        return 0;
    }
    QApplication application(argc, argv);
    QApplication::setApplicationName("Velmora");
    QApplication::setStyle(new velmora::ProgramStyle);
    const auto line = velmora::command_line_of(words_of(QApplication::arguments()));
    if (!line.fault.empty()) {
        std::cerr << "velmora: " << line.fault << '\n';
        return kUsageFault;
    }
    velmora::QtPlatform platform;
    platform.install();
    choose_folder();
    if (!line.file.empty())
        open_at_start(*platform.windows, line.file);
    keep_place_of_main_window(*platform.windows);
    const velmora::SessionGuard guard(*platform.windows);
    platform.windows->start();
    return QApplication::exec();
}
