#include "cutprep/side.h"

#include "document/session.h"

namespace velmora {

Side side_of(std::string_view lado) {
    AjusteWindow& window = session.ajuste;
    if (lado == "A")
        return {"A",
                session.PtosA,
                session.TrabajoA,
                session.PtosA2,
                window.txt_fileA,
                window.TxtTotalPtos_A,
                window.TxtTotalCtrlPtos_A,
                window.Txt_File_A2,
                window.TxtTotalPtosNew_A,
                window.TxtTotalCtrlPtosNew_A};
    return {"B",
            session.PtosB,
            session.TrabajoB,
            session.PtosB2,
            window.Txt_FileB,
            window.TxtTotalPtos_B,
            window.TxtTotalCtrlPtos_B,
            window.Txt_File_B2,
            window.TxtTotalPtosNew_B,
            window.TxtTotalCtrlPtosNew_B};
}

} // namespace velmora
