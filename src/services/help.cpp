#include "services/help.h"

#include "document/feedback.h"
#include "document/number_text.h"
#include "platform/platform.h"
#include "platform/shell.h"
#include "platform/windows.h"
#include "services/deployment.h"
#include "services/message_codes.h"
#include "services/messages.h"
#include "services/window_literals.h"

namespace velmora {

namespace {

// Results of the shell from here on mean that the program started.
constexpr int kStarted = 33;

std::string version_in_brackets() {
    return '(' + CStr(std::int32_t{session.SubVer}) + ')';
}

} // namespace

Flag EnviaMail(std::string_view direccion, std::string_view asunto, std::string_view cuerpo,
               std::string_view cc, std::string_view bcc) {
    std::string target = "mailto:";
    target.append(direccion);
    target.append("?subject=").append(asunto);
    target.append("&body=").append(cuerpo);
    target.append("&CC=").append(cc);
    target.append("&BCC=").append(bcc);
    return flag(platform().shell.open(target) >= kStarted);
}

void open_web_page() {
    const std::string page = deployment().web_page;
    if (page.empty()) {
        set_status(GetMensaje(mensaje::no_web_page));
        return;
    }
    platform().shell.open(page);
}

void write_to_support() {
    const std::string address = deployment().support_address;
    if (address.empty()) {
        set_status(GetMensaje(mensaje::no_support_address));
        return;
    }
    EnviaMail(address, "Velmora Ver: " + session.Ver + "-" + version_in_brackets(), "", "", "");
}

void teclas_Load() {
    load_literals("teclas");
}

void teclas_Command1_Click() {
    platform().windows.unload("teclas");
}

void acerca_Load() {
    load_literals("acerca");
    session.acerca.lblVer = "Velmora Ver.: " + session.Ver + " " + version_in_brackets();
}

void acerca_Activate() {
    session.acerca.SSPanel1 = deployment().helpers;
}

void acerca_Command1_Click() {
    platform().windows.unload("acerca");
}

void acerca_lbl_web_Click() {
    open_web_page();
}

void acerca_lbl_mail_Click() {
    write_to_support();
}

} // namespace velmora
