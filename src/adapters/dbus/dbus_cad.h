// A running CAD over the desktop's session bus: whoever owns the name org.velmora.Cad1. The
// interface is data/dbus/org.velmora.Cad1.xml; docs/cad-interface.md tells it to a CAD's author.
#pragma once

#include "cad/autocad.h"

#include <chrono>
#include <memory>

namespace velmora {

/// How long a CAD may think: before it counts as busy when it is looked for, and later as gone. A
/// pick waits for the user without an end.
struct CadPatience {
    std::chrono::milliseconds to_attach = std::chrono::seconds(5);
    std::chrono::milliseconds to_answer = std::chrono::seconds(60);
};

/// Needs a QCoreApplication. While a call waits the windows repaint and take no input. Nothing is
/// ever started: what doesn't run, or owns the name without offering the interface, is no CAD.
/// Besides the CAD's own numbers the calls raise 462 when it is gone or silent, 438 for what it
/// doesn't know, 13 for an answer of another shape, 440 for other failures of the bus.
[[nodiscard]] std::unique_ptr<Autocad> make_dbus_cad(CadPatience patience = {});

} // namespace velmora
