#include "cutprep/side_totals.h"

#include "document/windows/ajuste.h"

namespace velmora {

SideTotals totals_of(std::string_view lado) {
    AjusteWindow& window = state::ajuste;
    if (lado == "A")
        return {window.TxtTotalPtos_A, window.TxtTotalCtrlPtos_A, window.TxtTotalPtosNew_A,
                window.TxtTotalCtrlPtosNew_A};
    return {window.TxtTotalPtos_B, window.TxtTotalCtrlPtos_B, window.TxtTotalPtosNew_B,
            window.TxtTotalCtrlPtosNew_B};
}

} // namespace velmora
