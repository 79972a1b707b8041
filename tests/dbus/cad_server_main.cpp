// cad_server INTERFACE_FILE: owns org.velmora.Cad1 on the session bus and says so in a line.
#include "cad_server.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QTextStream>

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    velmora::test::CadServer server(application.arguments().value(1));
    auto bus = QDBusConnection::sessionBus();
    if (!bus.registerVirtualObject("/org/velmora/Cad1", &server) ||
        !bus.registerService("org.velmora.Cad1"))
        return 1;
    QTextStream(stdout) << "ready" << Qt::endl;
    return QCoreApplication::exec();
}
