#include "app/program_folder.h"
#include "app/qt_platform.h"
#include "document/state/program.h"
#include "runtime/paths.h"

#include <QApplication>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setApplicationName("Velmora");
    velmora::QtPlatform platform;
    platform.install();
    const velmora::ProgramFolder folder = velmora::find_program_folder();
    velmora::state::program.program_folder = velmora::runtime::path_text(folder.path);
    for (const auto& file : folder.kept_aside)
        velmora::state::program.kept_aside.push_back(velmora::runtime::path_text(file));
    platform.windows->start();
    return QApplication::exec();
}
