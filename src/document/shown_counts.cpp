#include "document/shown_counts.h"

#include "document/number_text.h"
#include "document/state/document.h"
#include "document/windows/wininfo.h"
#include "runtime/numbers.h"

namespace velmora {

void show_TotalPtos(std::int32_t count) {
    state::wininfo.TxtTotalPtos = CStr(count);
    state::document.TotalPtos = count;
}

void show_TotalSinc(std::int32_t count) {
    state::wininfo.TxtTotalCtrlPtos = CStr(count);
    state::document.TotalSinc = count;
}

void step_TotalSinc(std::int32_t step) {
    std::string& text = state::wininfo.TxtTotalCtrlPtos;
    text = CStr(runtime::Val(text) + step);
    state::document.TotalSinc += step;
}

} // namespace velmora
