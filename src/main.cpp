#include "adapters/qt/qt_platform.h"
#include "document/session.h"

#include <QApplication>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setApplicationName("Velmora");
    velmora::QtPlatform platform;
    platform.install();
    velmora::session.program_folder = velmora::find_program_folder();
    platform.windows->start();
    return QApplication::exec();
}
