#include "services/help.h"

#include "document/feedback.h"
#include "document/flag.h"
#include "document/number_text.h"
#include "document/state/program.h"
#include "platform/platform.h"
#include "platform/shell.h"
#include "services/deployment.h"
#include "services/message_codes.h"
#include "services/messages.h"

namespace velmora {

namespace {

// Results of the shell from here on mean that the program started.
constexpr int kStarted = 33;

} // namespace

std::string version_in_brackets() {
    return '(' + CStr(std::int32_t{state::program.SubVer}) + ')';
}

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
        set_status(GetMensaje(message::no_web_page));
        return;
    }
    platform().shell.open(page);
}

void write_to_support() {
    const std::string address = deployment().support_address;
    if (address.empty()) {
        set_status(GetMensaje(message::no_support_address));
        return;
    }
    EnviaMail(address, "Velmora Ver: " + state::program.Ver + "-" + version_in_brackets(), "", "",
              "");
}

} // namespace velmora
