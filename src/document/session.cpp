#include "document/session.h"

#include "runtime/paths.h"

#include <memory>
#include <new>

namespace velmora {

FormaDocument Forma;
Session session;

// Constant from the start: a part is a place in the block.
namespace state {
constinit ProgramState& program = session;
constinit DocumentState& document = session;
constinit LoadingState& loading = session;
constinit ViewState& view = session;
constinit OptionState& options = session;
constinit SettingState& settings = session;
constinit ViewChoiceState& view_choices = session;
constinit CadState& cad = session;
constinit WorkbenchState& workbench = session;
constinit VelmoraWindow& Velmora = session.Velmora;
constinit IntroWindow& intro = session.intro;
constinit WinInfo& wininfo = session.wininfo;
constinit WinOptions& winoptions = session.winoptions;
constinit ScaleXyWindow& Scale_xy = session.Scale_xy;
constinit DelNptoWindow& del_Npto = session.del_Npto;
constinit ImportarWindow& importar = session.importar;
constinit MultPtosWindow& Mult_Ptos = session.Mult_Ptos;
constinit NewDatWindow& New_Dat = session.New_Dat;
constinit CompensaWindow& Compensa = session.Compensa;
constinit SetupWindow& setup = session.setup;
constinit AcercaWindow& acerca = session.acerca;
constinit SeltextoWindow& seltexto = session.seltexto;
constinit AjusteWindow& ajuste = session.ajuste;
constinit AjusteOptWindow& ajuste_opt = session.ajuste_opt;
constinit VerCorteWindow& ver_corte = session.ver_corte;
} // namespace state

std::string program_file(std::string_view name) {
    return runtime::join(session.program_folder, name);
}

std::string box_title() {
    return "Velmora " + session.Ver;
}

void reset_session() {
    Forma = FormaDocument{};
    std::destroy_at(&session);
    std::construct_at(&session);
}

} // namespace velmora
