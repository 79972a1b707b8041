#include "forms/acerca.h"

#include "document/state/program.h"
#include "document/windows/acerca.h"
#include "platform/platform.h"
#include "platform/program_windows.h"
#include "services/deployment.h"
#include "services/help.h"
#include "services/window_literals.h"

namespace velmora {

void acerca_Load() {
    load_literals("acerca");
    state::acerca.lblVer = "Velmora Ver.: " + state::program.Ver + " " + version_in_brackets();
}

void acerca_Activate() {
    state::acerca.SSPanel1 = deployment().helpers;
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
