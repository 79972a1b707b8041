#include "shapeops/transforms.h"

#include "document/extents.h"
#include "document/forma.h"
#include "document/refresh.h"
#include "document/state/options.h"
#include "runtime/numbers.h"
#include "services/message_codes.h"
#include "shapeops/framed.h"

#include <algorithm>
#include <cmath>

namespace velmora {

namespace {

void shift(double Pto::*field, double offset) {
    const double distance = std::fabs(offset);
    for (Pto& point : Forma.Pto.all())
        point.*field = runtime::checked(point.*field + distance);
}

void negate(double Pto::*field) {
    for (Pto& point : Forma.Pto.all())
        point.*field = -(point.*field);
}

} // namespace

void PositivaX(double offset) {
    trap([&] { shift(&Pto::X, offset); },
         [](const RuntimeError& failure) { show_trap("Error PositivaX nº: ", failure); });
}

void PositivaY(double offset) {
    trap([&] { shift(&Pto::Y, offset); },
         [](const RuntimeError& failure) { show_trap("Error PositivaY nº: ", failure); });
}

void Positivarfrma() {
    framed("Error Positivarfrma nº: ", message::making_positive, message::made_positive, [] {
        const double min_y = GetMinY("0");
        const double min_x = GetMinX("0");
        if (min_y < 0)
            PositivaY(min_y);
        if (min_x < 0)
            PositivaX(min_x);
    });
}

void MirrorHorDat() {
    framed("Error MirrorHorDat nº: ", message::mirroring_horizontal, message::mirrored_horizontal,
           [] { negate(&Pto::X); });
}

void MirrorVerDat() {
    framed("Error MirrorVerDat nº: ", message::mirroring_vertical, message::mirrored_vertical,
           [] { negate(&Pto::Y); });
}

void InvertDat() {
    framed("Error InvertDat nº: ", message::inverting, message::inverted,
           [] { std::ranges::reverse(Forma.Pto.all().subspan(1)); });
}

void Apply_Precision() {
    framed("Error Apply_Precision nº: ", message::applying_precision, message::precision_applied,
           [] {
               const int decimals = runtime::to_int16(state::options.Precision);
               for (Pto& point : Forma.Pto.all()) {
                   point.X = runtime::Round(point.X, decimals);
                   point.Y = runtime::Round(point.Y, decimals);
               }
           });
}

} // namespace velmora
