#include "adapters/dbus/cad_link.h"

#include "adapters/dbus/bus_faults.h"
#include "cad/autocad.h"
#include "platform/cancelled.h"

#include <QCoreApplication>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusReply>
#include <QDBusVariant>
#include <QEventLoop>
#include <QKeyEvent>

#include <limits>

namespace velmora {

namespace {

constexpr auto kService = "org.velmora.Cad1";
constexpr auto kPath = "/org/velmora/Cad1";
constexpr auto kInterface = "org.velmora.Cad1";
constexpr auto kConnection = "velmora-cad";
constexpr std::chrono::milliseconds kNoEnd{std::numeric_limits<int>::max()};

/// A connection of its own, so that a bus which was restarted is found again.
QDBusConnection session_bus() {
    QDBusConnection bus(kConnection);
    if (bus.isConnected())
        return bus;
    QDBusConnection::disconnectFromBus(kConnection);
    return QDBusConnection::connectToBus(QDBusConnection::SessionBus, kConnection);
}

/// The error of a question: `silence` where the one who was asked is there and says nothing.
RuntimeError fault_of_question(const QDBusConnection& bus, const QDBusMessage& question,
                               const QDBusError& failure, int silence) {
    if (is_silence(failure) && bus.interface()->isServiceRegistered(question.service()))
        return RuntimeError(silence);
    return fault_of(failure);
}

/// Meanwhile the windows repaint and do nothing else: what a person does in them waits.
QDBusMessage answer_to(const QDBusConnection& bus, QDBusMessage question,
                       std::chrono::milliseconds patience,
                       int silence = error::server_unavailable) {
    question.setAutoStartService(false);
    const QDBusPendingCallWatcher watcher(
        bus.asyncCall(question, static_cast<int>(patience.count())));
    QEventLoop loop;
    QObject::connect(&watcher, &QDBusPendingCallWatcher::finished, &loop, &QEventLoop::quit);
    if (!watcher.isFinished())
        loop.exec(QEventLoop::ExcludeUserInputEvents);
    // The program is ending.
    if (!watcher.isFinished())
        raise(error::server_unavailable);
    if (watcher.isError())
        throw fault_of_question(bus, question, watcher.error(), silence);
    return watcher.reply();
}

/// Keeps what a person does in the windows from them, but for Esc, which ends the wait.
class EscapeAlone : public QObject {
  public:
    explicit EscapeAlone(QEventLoop& wait) : wait_(wait) {
        QCoreApplication::instance()->installEventFilter(this);
    }
    [[nodiscard]] bool pressed() const { return pressed_; }

  private:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        switch (event->type()) {
        case QEvent::KeyPress:
        case QEvent::ShortcutOverride:
            if (static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
                pressed_ = true;
                wait_.quit();
            }
            return true;
        case QEvent::KeyRelease:
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
        case QEvent::Wheel:
        case QEvent::Close:
            return true;
        default:
            return false;
        }
    }

    QEventLoop& wait_;
    bool pressed_ = false;
};

/// As `answer_to`; Esc throws Cancelled.
QDBusMessage answer_or_cancel(const QDBusConnection& bus, QDBusMessage question,
                              std::chrono::milliseconds patience) {
    question.setAutoStartService(false);
    const QDBusPendingCallWatcher watcher(
        bus.asyncCall(question, static_cast<int>(patience.count())));
    QEventLoop loop;
    QObject::connect(&watcher, &QDBusPendingCallWatcher::finished, &loop, &QEventLoop::quit);
    const EscapeAlone escape(loop);
    if (!watcher.isFinished())
        loop.exec();
    if (escape.pressed())
        throw Cancelled{};
    if (!watcher.isFinished())
        raise(error::server_unavailable);
    if (watcher.isError())
        throw fault_of_question(bus, question, watcher.error(), error::server_unavailable);
    return watcher.reply();
}

QVariant only_value(const QDBusMessage& answer, const char* signature) {
    if (answer.signature() != QLatin1String(signature))
        raise(error::type_mismatch);
    return answer.arguments().constFirst();
}

QDBusMessage question_to(const QString& owner, const char* interface, const char* method,
                         const QVariantList& arguments) {
    QDBusMessage question = QDBusMessage::createMethodCall(owner, kPath, interface, method);
    question.setArguments(arguments);
    return question;
}

} // namespace

CadLink::CadLink(QDBusConnection bus, QString owner, CadPatience patience)
    : bus_(std::move(bus)), owner_(std::move(owner)), patience_(patience) {}

std::optional<CadLink> CadLink::attach(CadPatience patience) {
    const QDBusConnection bus = session_bus();
    if (!bus.isConnected())
        return std::nullopt;
    const QDBusReply<QString> owner = bus.interface()->serviceOwner(kService);
    if (!owner.isValid())
        return std::nullopt;
    return CadLink(bus, owner.value(), patience);
}

QString CadLink::property(const char* name) const {
    const QDBusMessage answer = answer_to(bus_,
                                          question_to(owner_, "org.freedesktop.DBus.Properties",
                                                      "Get", {QString(kInterface), QString(name)}),
                                          patience_.to_attach, error::cad_busy);
    const QVariant value = only_value(answer, "v").value<QDBusVariant>().variant();
    if (value.typeId() != QMetaType::QString)
        raise(error::type_mismatch);
    return value.toString();
}

void CadLink::tell(const char* method, const QVariantList& arguments) const {
    answer_to(bus_, question_to(owner_, kInterface, method, arguments), patience_.to_answer);
}

QVariant CadLink::ask(const char* method, const char* signature,
                      const QVariantList& arguments) const {
    return only_value(
        answer_to(bus_, question_to(owner_, kInterface, method, arguments), patience_.to_answer),
        signature);
}

QVariant CadLink::ask_patiently(const char* method, const char* signature,
                                const QVariantList& arguments) const {
    return only_value(answer_or_cancel(bus_, question_to(owner_, kInterface, method, arguments),
                                       patience_.to_answer),
                      signature);
}

QVariant CadLink::ask_user(const char* method, const char* signature,
                           const QVariantList& arguments) const {
    return only_value(answer_to(bus_, question_to(owner_, kInterface, method, arguments), kNoEnd),
                      signature);
}

} // namespace velmora
