// The line to one running CAD: its address on the bus and calls that fail with a run-time error.
#pragma once

#include "adapters/dbus/cad_patience.h"

#include <QDBusConnection>
#include <QString>
#include <QVariant>

#include <optional>

namespace velmora {

class CadLink {
  public:
    /// To whoever owns the name now, and to nobody who owns it later; nothing when nobody does.
    [[nodiscard]] static std::optional<CadLink> attach(CadPatience patience);

    /// Raises cad_busy where the CAD is there and does not answer.
    [[nodiscard]] QString property(const char* name) const;
    /// Raises what the CAD answers, 462 when it is gone or silent.
    void tell(const char* method, const QVariantList& arguments = {}) const;
    /// The answer's one value; `signature` is what the interface says of it, 13 is raised for
    /// another.
    [[nodiscard]] QVariant ask(const char* method, const char* signature,
                               const QVariantList& arguments = {}) const;
    /// The same where the answer may be long on its way: Esc in a window of the program throws
    /// Cancelled.
    [[nodiscard]] QVariant ask_patiently(const char* method, const char* signature,
                                         const QVariantList& arguments) const;
    /// The same for a question to the user, who may take any time.
    [[nodiscard]] QVariant ask_user(const char* method, const char* signature,
                                    const QVariantList& arguments) const;

  private:
    CadLink(QDBusConnection bus, QString owner, CadPatience patience);

    QDBusConnection bus_;
    QString owner_;
    CadPatience patience_;
};

} // namespace velmora
