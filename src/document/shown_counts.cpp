#include "document/shown_counts.h"

#include "document/number_text.h"
#include "document/session.h"
#include "runtime/numbers.h"

namespace velmora {

void show_TotalPtos(std::int32_t count) {
    session.wininfo.TxtTotalPtos = CStr(count);
    session.TotalPtos = count;
}

void show_TotalSinc(std::int32_t count) {
    session.wininfo.TxtTotalCtrlPtos = CStr(count);
    session.TotalSinc = count;
}

void step_TotalSinc(std::int32_t step) {
    std::string& text = session.wininfo.TxtTotalCtrlPtos;
    text = CStr(runtime::Val(text) + step);
    session.TotalSinc += step;
}

} // namespace velmora
