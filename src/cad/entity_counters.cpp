#include "cad/entity_counters.h"

#include "document/feedback.h"
#include "document/shown.h"
#include "document/state/cad.h"
#include "document/windows/velmora.h"
#include "document/windows/wininfo.h"

#include <array>

namespace velmora {

namespace {

ShownCount counter_of(TipoCad tipo) {
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

constexpr std::array kCountedKinds = {TipoCad::AcDbLine, TipoCad::AcDbSpline, TipoCad::AcDbPolyline,
                                      TipoCad::AcDbArc, TipoCad::AcDbCircle};

} // namespace

void reset_entity_counters() {
    shown::TotalObjs().keep(0);
    for (const TipoCad kind : kCountedKinds)
        counter_of(kind).keep(0);
}

void clear_entity_boxes() {
    shown::TotalObjs().show(0);
    for (const TipoCad kind : kCountedKinds)
        counter_of(kind).show(0);
}

void clear_entity_counts() {
    for (const TipoCad kind : kCountedKinds)
        counter_of(kind).put(0);
}

void count_entity(TipoCad tipo, std::int32_t taken) {
    shown::TotalObjs().put(taken);
    counter_of(tipo).count();
}

void start_entity_progress(double points) {
    state::Velmora.pbar2 = {.Min = 0, .Max = points, .Value = 0};
}

void step_entity_progress() {
    state::Velmora.pbar2.Value += 1;
    DoEvents();
}

} // namespace velmora
