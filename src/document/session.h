// The session block: every value that the windows and routines share, under its own name. It is put
// together from parts with a header each; a source takes the parts that it needs, by `state::`, and
// few see the whole.
#pragma once

#include "document/flag.h"
#include "document/forma.h"
#include "document/selection.h"
#include "document/state/cad.h"
#include "document/state/document.h"
#include "document/state/loading.h"
#include "document/state/options.h"
#include "document/state/program.h"
#include "document/state/settings.h"
#include "document/state/view.h"
#include "document/state/view_choices.h"
#include "document/state/workbench.h"
#include "document/windows/acerca.h"
#include "document/windows/ajuste.h"
#include "document/windows/ajuste_opt.h"
#include "document/windows/compensa.h"
#include "document/windows/del_npto.h"
#include "document/windows/importar.h"
#include "document/windows/intro.h"
#include "document/windows/mult_ptos.h"
#include "document/windows/new_dat.h"
#include "document/windows/scale_xy.h"
#include "document/windows/seltexto.h"
#include "document/windows/setup.h"
#include "document/windows/velmora.h"
#include "document/windows/ver_corte.h"
#include "document/windows/wininfo.h"
#include "document/windows/winoptions.h"

namespace velmora {

struct Session : ProgramState,
                 DocumentState,
                 LoadingState,
                 ViewState,
                 OptionState,
                 SettingState,
                 ViewChoiceState,
                 CadState,
                 WorkbenchState {
    VelmoraWindow Velmora;
    IntroWindow intro;
    WinInfo wininfo;
    WinOptions winoptions;
    ScaleXyWindow Scale_xy;
    DelNptoWindow del_Npto;
    ImportarWindow importar;
    MultPtosWindow Mult_Ptos;
    NewDatWindow New_Dat;
    CompensaWindow Compensa;
    SetupWindow setup;
    AcercaWindow acerca;
    SeltextoWindow seltexto;
    AjusteWindow ajuste;
    AjusteOptWindow ajuste_opt;
    VerCorteWindow ver_corte;
};

extern Session session;

/// Forma and session as at program start, for tests and the scenario driver. Open files are
/// abandoned.
void reset_session();

} // namespace velmora
