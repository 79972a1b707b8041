#include "document/shown.h"

#include "document/state/cad.h"
#include "document/state/document.h"
#include "document/state/options.h"
#include "document/state/view.h"
#include "document/windows/wininfo.h"
#include "document/windows/winoptions.h"
#include "runtime/numbers.h"

#include <array>
#include <charconv>

namespace velmora {

void show_count(std::string& box, std::int64_t count) {
    std::array<char, 24> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), count).ptr;
    box.assign(digits.data(), end);
}

void step_count(std::string& box, std::int32_t step) {
    box = CStr(runtime::Val(box) + step);
}

std::int32_t count_in(const std::string& box) {
    return runtime::to_int32(runtime::Val(box));
}

namespace shown {

ShownCount TotalPtos() {
    return {state::document.TotalPtos, state::wininfo.TxtTotalPtos};
}

ShownCount TotalSinc() {
    return {state::document.TotalSinc, state::wininfo.TxtTotalCtrlPtos};
}

ShownCount PtosSuprimidos() {
    return {state::document.PtosSuprimidos, state::wininfo.TxtPtosSupr};
}

ShownCount TotalObjs() {
    return {state::cad.TotalObjs, state::wininfo.TxtProcesed};
}

ShownFigure OrigX() {
    return {state::document.OrigX, state::wininfo.TxtOrigX};
}

ShownFigure OrigY() {
    return {state::document.OrigY, state::wininfo.TxtOrigY};
}

ShownFigure Longitud() {
    return {state::document.Longitud, state::wininfo.Txt_longitud};
}

ShownFigure Altura() {
    return {state::document.Altura, state::wininfo.Txt_Altura};
}

ShownFigure ZoomFactor() {
    return {state::view.ZoomFactor, state::winoptions.Txt_zoom};
}

ShownCount PutArc() {
    return {state::options.PutArc, state::winoptions.TxtPutArc};
}

ShownCount PutCircle() {
    return {state::options.PutCircle, state::winoptions.TxtPutCircle};
}

} // namespace shown

} // namespace velmora
