#include "free_cad.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QElapsedTimer>
#include <QJsonArray>
#include <QJsonDocument>

#include <stdexcept>

namespace velmora::test {

namespace {

constexpr auto kProbe = "org.velmora.FreeCadTest1";
constexpr int kPatience = 60000; // milliseconds, for a start on a machine that is busy

bool is_on_bus() {
    const auto* bus = QDBusConnection::sessionBus().interface();
    return bus->isServiceRegistered("org.velmora.Cad1") && bus->isServiceRegistered(kProbe);
}

} // namespace

FreeCad::FreeCad() {
    process_.setProcessChannelMode(QProcess::MergedChannels);
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert("HOME", home_.path());
    environment.insert("LC_ALL", "C.UTF-8");
    environment.insert("VELMORA_SERVE", VELMORA_FREECAD_SERVE);
    for (const char* folder : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"})
        environment.remove(folder);
    process_.setProcessEnvironment(environment);
    QObject::connect(&process_, &QProcess::readyReadStandardOutput, [this] { answer(); });
    start();
}

void FreeCad::start() {
    process_.start(VELMORA_FREECADCMD, {VELMORA_FREECAD_DRAWING});
    QElapsedTimer waited;
    waited.start();
    while (!is_on_bus()) {
        process_.waitForReadyRead(100);
        if (process_.state() == QProcess::NotRunning || waited.hasExpired(kPatience))
            throw std::runtime_error("FreeCAD is not on the bus: " + output_.toStdString());
    }
}

FreeCad::~FreeCad() {
    kill();
}

QJsonValue FreeCad::evaluate(const QString& expression) {
    auto question = QDBusMessage::createMethodCall(kProbe, "/", kProbe, "Evaluate");
    question << expression;
    const QDBusMessage answer =
        QDBusConnection::sessionBus().call(question, QDBus::Block, kPatience);
    if (answer.type() != QDBusMessage::ReplyMessage)
        throw std::runtime_error((expression + ": " + answer.errorMessage()).toStdString());
    const QByteArray json = answer.arguments().constFirst().toString().toUtf8();
    return QJsonDocument::fromJson(json).array().at(0);
}

void FreeCad::type_when_asked(const QByteArray& line) {
    line_ = line;
    output_.clear();
}

void FreeCad::answer() {
    output_ += process_.readAllStandardOutput();
    if (line_.isEmpty() || !output_.endsWith("X,Y: "))
        return;
    process_.write(line_);
    line_.clear();
}

void FreeCad::kill() {
    process_.kill();
    process_.waitForFinished();
}

} // namespace velmora::test
