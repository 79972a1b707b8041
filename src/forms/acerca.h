// The window acerca, the about box and its links.
#pragma once

namespace velmora {

void acerca_Load();
/// Shows the names of those who helped.
void acerca_Activate();
void acerca_Command1_Click();
/// The links: the page and the mail.
void acerca_lbl_web_Click();
void acerca_lbl_mail_Click();

} // namespace velmora
