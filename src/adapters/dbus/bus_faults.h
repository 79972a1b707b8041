// Errors of the bus as run-time errors.
#pragma once

#include "runtime/error.h"

#include <QDBusError>

namespace velmora {

/// An error named org.velmora.Cad1.Error.EXXXXXXXX carries the CAD's own number in hexadecimal; any
/// other gets the run-time's number for it. The description is the CAD's own.
[[nodiscard]] RuntimeError fault_of(const QDBusError& failure);

/// Nobody answered in time; or the one who was asked went meanwhile.
[[nodiscard]] bool is_silence(const QDBusError& failure);

} // namespace velmora
