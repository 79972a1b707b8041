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

RemoteCadSession::RemoteCadSession() {
    set_platform({machine.dialogs, machine.windows, machine.shell, machine.settings,
                  *machine.database, machine.clock, machine.machine, machine.pic, *cad});
    session.winoptions.TxtPutArc = "3";
    session.winoptions.TxtPutCircle = "4";
}

void RemoteCadSession::start_cad(std::initializer_list<const char*> lines) {
    remote = std::make_unique<RemoteCad>();
    remote->say("running AutoCAD 15.0");
    for (const char* line : lines)
        remote->say(line);
}

void RemoteCadSession::open_drawing(std::initializer_list<const char*> entities) {
    start_cad({"document Ala.dwg"});
    for (const char* entity : entities)
        remote->say(entity);
    ReconectaAcad();
}

std::vector<std::string> RemoteCadSession::shown_texts() const {
    std::vector<std::string> texts;
    for (const ShownBox& box : machine.dialogs.boxes)
        texts.push_back(box.text);
    return texts;
}

} // namespace velmora::test
