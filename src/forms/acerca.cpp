#include "forms/acerca.h"

#include "document/session.h"
#include "platform/platform.h"
#include "platform/windows.h"
#include "services/deployment.h"
#include "services/help.h"
#include "services/window_literals.h"

namespace velmora {

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
