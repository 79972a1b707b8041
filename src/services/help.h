// Help and support: the page and the mail.
#pragma once

#include "document/flag.h"

#include <string>
#include <string_view>

namespace velmora {

/// Hands a mail to the mail client; -1 when it started, else 0. Nothing is escaped: an "&" in the
/// subject ends it early, on purpose.
Flag EnviaMail(std::string_view direccion, std::string_view asunto, std::string_view cuerpo,
               std::string_view cc, std::string_view bcc);

/// The build number as it is shown, "(1011)".
[[nodiscard]] std::string version_in_brackets();

/// Opens the program's page, starts a mail to its support. What the deployment left empty has no
/// effect but a line in the status panel.
void open_web_page();
void write_to_support();

} // namespace velmora
