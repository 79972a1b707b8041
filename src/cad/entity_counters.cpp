#include "cad/entity_counters.h"

#include "document/number_text.h"
#include "document/session.h"

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
        return {session.NSplines, session.wininfo.TxtNSplines};
    case TipoCad::AcDbPolyline:
        return {session.NLWPolylines, session.wininfo.TxtNLWPolylines};
    case TipoCad::AcDbArc:
        return {session.NArcs, session.wininfo.TxtNArcs};
    case TipoCad::AcDbCircle:
        return {session.NCircles, session.wininfo.TxtNCircles};
    default:
        return {session.NLines, session.wininfo.TxtNlines};
    }
}

} // namespace

void reset_entity_counters() {
    session.TotalObjs = 0;
    session.NLines = session.NSplines = session.NLWPolylines = 0;
    session.NArcs = session.NCircles = 0;
}

void clear_entity_boxes() {
    WinInfo& info = session.wininfo;
    for (std::string* box : {&info.TxtProcesed, &info.TxtNlines, &info.TxtNSplines,
                             &info.TxtNLWPolylines, &info.TxtNArcs, &info.TxtNCircles})
        *box = CStr(std::int32_t{0});
}

void count_entity(TipoCad tipo, std::int32_t taken) {
    session.TotalObjs = taken;
    session.wininfo.TxtProcesed = CStr(taken);
    const Counter counter = counter_of(tipo);
    counter.box = CStr(++counter.total);
}

} // namespace velmora
