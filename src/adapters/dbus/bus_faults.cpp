#include "adapters/dbus/bus_faults.h"

#include <QString>

#include <cstdint>
#include <optional>

namespace velmora {

namespace {

constexpr int kAutomationError = 440;

/// Zero is not the number of an error.
std::optional<int> own_number(const QString& name) {
    static const QString prefix = "org.velmora.Cad1.Error.E";
    if (!name.startsWith(prefix))
        return std::nullopt;
    bool is_number = false;
    const std::uint32_t number = name.sliced(prefix.size()).toUInt(&is_number, 16);
    if (!is_number || number == 0)
        return std::nullopt;
    return static_cast<std::int32_t>(number);
}

/// What the bus says of a receiver that is gone and is not to be started; Qt has no type for it.
bool is_without_owner(const QDBusError& failure) {
    return failure.name() == QLatin1String("org.freedesktop.DBus.Error.NameHasNoOwner");
}

int number_of(const QDBusError& failure) {
    if (is_without_owner(failure))
        return error::server_unavailable;
    switch (failure.type()) {
    // The application, or the object in it, is gone or does not answer.
    case QDBusError::ServiceUnknown:
    case QDBusError::UnknownObject:
    case QDBusError::NoReply:
    case QDBusError::Timeout:
    case QDBusError::TimedOut:
    case QDBusError::Disconnected:
    case QDBusError::NoServer:
    case QDBusError::NoNetwork:
        return error::server_unavailable;
    case QDBusError::UnknownMethod:
    case QDBusError::UnknownInterface:
    case QDBusError::UnknownProperty:
        return error::no_such_member;
    case QDBusError::InvalidArgs:
        return error::invalid_call;
    case QDBusError::InvalidSignature:
        return error::type_mismatch;
    case QDBusError::AccessDenied:
        return error::permission_denied;
    case QDBusError::NoMemory:
        return error::out_of_memory;
    default:
        return kAutomationError;
    }
}

} // namespace

bool is_silence(const QDBusError& failure) {
    return failure.type() == QDBusError::NoReply || failure.type() == QDBusError::Timeout ||
           failure.type() == QDBusError::TimedOut;
}

RuntimeError fault_of(const QDBusError& failure) {
    const int number = own_number(failure.name()).value_or(number_of(failure));
    // What the bus says of a CAD that is gone is not a text for its user.
    if (number == error::server_unavailable)
        return RuntimeError(number);
    return RuntimeError(number, failure.message().toStdString());
}

} // namespace velmora
