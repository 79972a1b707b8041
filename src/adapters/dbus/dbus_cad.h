// A running CAD over the desktop's session bus: whoever owns the name org.velmora.Cad1. The
// interface is data/dbus/org.velmora.Cad1.xml; docs/cad-interface.md describes it for the author of
// a CAD.
#pragma once

#include "adapters/dbus/cad_patience.h"
#include "cad/autocad.h"

#include <memory>

namespace velmora {

/// Needs a QCoreApplication. While a call waits the windows repaint and take no input. Nothing is
/// ever started: what doesn't run, or owns the name without offering the interface, is not a CAD.
/// Besides the CAD's own numbers the calls raise 462 when it is gone or silent, 438 for what it
/// doesn't know, 13 for an answer of another shape, 440 for other failures of the bus.
[[nodiscard]] std::unique_ptr<Autocad> make_dbus_cad(CadPatience patience = {});

} // namespace velmora
