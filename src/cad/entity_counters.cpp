#include "cad/entity_counters.h"

#include "document/number_text.h"
#include "document/state/cad.h"
#include "document/windows/wininfo.h"

#include <string>

namespace velmora {

namespace {

struct Counter {
    std::int32_t& total;
    std::string& box;
};

Counter counter_of(TipoCad tipo) {
    switch (tipo) {
    case TipoCad::AcDbSpline:
        return {state::cad.NSplines, state::wininfo.TxtNSplines};
    case TipoCad::AcDbPolyline:
        return {state::cad.NLWPolylines, state::wininfo.TxtNLWPolylines};
    case TipoCad::AcDbArc:
        return {state::cad.NArcs, state::wininfo.TxtNArcs};
    case TipoCad::AcDbCircle:
        return {state::cad.NCircles, state::wininfo.TxtNCircles};
    default:
        return {state::cad.NLines, state::wininfo.TxtNlines};
    }
}

} // namespace

void reset_entity_counters() {
    state::cad.TotalObjs = 0;
    state::cad.NLines = state::cad.NSplines = state::cad.NLWPolylines = 0;
    state::cad.NArcs = state::cad.NCircles = 0;
}

void clear_entity_boxes() {
    WinInfo& info = state::wininfo;
    for (std::string* box : {&info.TxtProcesed, &info.TxtNlines, &info.TxtNSplines,
                             &info.TxtNLWPolylines, &info.TxtNArcs, &info.TxtNCircles})
        *box = CStr(std::int32_t{0});
}

void count_entity(TipoCad tipo, std::int32_t taken) {
    state::cad.TotalObjs = taken;
    state::wininfo.TxtProcesed = CStr(taken);
    const Counter counter = counter_of(tipo);
    counter.box = CStr(++counter.total);
}

} // namespace velmora
