// The printer of the desktop, through the toolkit.
#pragma once

#include "canvas/printer.h"

#include <functional>
#include <memory>

class QPrinter;

namespace velmora {

/// Gives the device for one sheet; nullptr where there is none.
using OpenPrinter = std::function<std::unique_ptr<QPrinter>()>;

/// The desktop's default printer, else the first that it has.
[[nodiscard]] std::unique_ptr<QPrinter> open_default_printer();

/// Prints on what `open` gives; it is asked anew for every sheet.
[[nodiscard]] std::unique_ptr<Printer> make_qt_printer(OpenPrinter open);
/// On the default printer.
[[nodiscard]] std::unique_ptr<Printer> make_qt_printer();

} // namespace velmora
