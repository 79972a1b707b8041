#include "remote_cad.h"

#include <QDBusConnection>
#include <QDBusMessage>

#include <csignal>
#include <stdexcept>

namespace velmora::test {

namespace {

QVariantList control(const char* method, const QString& text) {
    auto question = QDBusMessage::createMethodCall("org.velmora.Cad1", "/org/velmora/Cad1",
                                                   "org.velmora.CadTest1", method);
    question.setAutoStartService(false);
    question << text;
    const QDBusMessage answer = QDBusConnection::sessionBus().call(question);
    if (answer.type() != QDBusMessage::ReplyMessage)
        throw std::runtime_error((text + ": " + answer.errorMessage()).toStdString());
    return answer.arguments();
}

} // namespace

RemoteCad::RemoteCad() {
    process_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process_.start(VELMORA_CAD_SERVER, {VELMORA_CAD_INTERFACE});
    if (!process_.waitForReadyRead())
        throw std::runtime_error("the server does not start");
}

RemoteCad::~RemoteCad() {
    kill();
}

void RemoteCad::say(const QString& line) {
    control("Say", line);
}

QStringList RemoteCad::ask(const QString& about) {
    return control("Ask", about).constFirst().toStringList();
}

void RemoteCad::kill() {
    process_.kill();
    process_.waitForFinished();
}

void RemoteCad::freeze() const {
    ::kill(static_cast<pid_t>(process_.processId()), SIGSTOP);
}

void RemoteCad::thaw() const {
    ::kill(static_cast<pid_t>(process_.processId()), SIGCONT);
}

} // namespace velmora::test
