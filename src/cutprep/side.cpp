#include "cutprep/side.h"

#include "document/state/workbench.h"
#include "document/windows/ajuste.h"

namespace velmora {

Side side_of(std::string_view lado) {
    AjusteWindow& window = state::ajuste;
    if (lado == "A")
        return {"A",
                state::workbench.PtosA,
                state::workbench.TrabajoA,
                state::workbench.PtosA2,
                window.txt_fileA,
                window.TxtTotalPtos_A,
                window.TxtTotalCtrlPtos_A,
                window.Txt_File_A2,
                window.TxtTotalPtosNew_A,
                window.TxtTotalCtrlPtosNew_A};
    return {"B",
            state::workbench.PtosB,
            state::workbench.TrabajoB,
            state::workbench.PtosB2,
            window.Txt_FileB,
            window.TxtTotalPtos_B,
            window.TxtTotalCtrlPtos_B,
            window.Txt_File_B2,
            window.TxtTotalPtosNew_B,
            window.TxtTotalCtrlPtosNew_B};
}

} // namespace velmora
