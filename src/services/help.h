// Help, the list of shortcut keys, the about box and its links.
#pragma once

#include "document/session.h"

#include <string>
#include <string_view>

namespace velmora {

/// Hands a mail to the mail client; -1 when it started, else 0. Nothing is escaped: an "&" in the
/// subject ends it early, on purpose.
Flag EnviaMail(std::string_view direccion, std::string_view asunto, std::string_view cuerpo,
               std::string_view cc, std::string_view bcc);

/// Opens the program's page, starts a mail to its support. What the deployment left empty has no
/// effect but a line in the status panel.
void open_web_page();
void write_to_support();

void teclas_Load();
void teclas_Command1_Click();

void acerca_Load();
/// Shows the names of those who helped.
void acerca_Activate();
void acerca_Command1_Click();
/// The links: the page and the mail.
void acerca_lbl_web_Click();
void acerca_lbl_mail_Click();

} // namespace velmora
