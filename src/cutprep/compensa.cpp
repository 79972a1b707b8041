#include "cutprep/compensa.h"

#include "document/refresh.h"
#include "document/session.h"
#include "platform/platform.h"
#include "platform/windows.h"
#include "runtime/numbers.h"
#include "services/message_codes.h"
#include "services/messages.h"
#include "services/numeric_box.h"
#include "services/window_literals.h"

#include <cmath>

namespace velmora {

namespace {

using runtime::checked;
using runtime::divide;

constexpr std::string_view kWindow = "Compensa";
/// Keeps the division of a vertical chord alive.
constexpr double kNoWidth = 1E-15;

/// Steepness of a chord as an angle from 0 to a quarter turn.
double steepness(const Pto& from, const Pto& to) {
    const double width = to.X == from.X ? kNoWidth : checked(to.X - from.X);
    return std::fabs(std::atan(divide(checked(to.Y - from.Y), width)));
}

} // namespace

// A vertical chord leaves the place of the point before it, (0, 0) at the start: on purpose.
void compensate(double merma) {
    Forma.Paralela = Forma.Pto;
    double nx = 0;
    double ny = 0;
    for (std::int32_t i = 0; i < Forma.Pto.upper(); ++i) {
        const Pto& from = Forma.Pto[i];
        const Pto& to = Forma.Pto[i + 1];
        const double a = steepness(from, to);
        if (from.X < to.X) {
            nx = checked(from.X + std::sin(a) * merma);
            ny = checked(from.Y - std::cos(a) * merma);
        } else if (from.X > to.X) {
            nx = checked(from.X - std::sin(a) * merma);
            ny = checked(from.Y + std::cos(a) * merma);
        }
        Forma.Paralela[i].X = nx;
        Forma.Paralela[i].Y = ny;
    }
}

void Compensa_Load() {
    session.Compensa = {};
    load_literals(kWindow);
}

void Txt_merma_Change() {
    session.Compensa.cmd_ok_enabled = runtime::Val(session.Compensa.Txt_merma) != 0;
}

int Txt_merma_KeyPress(int key) {
    return numeric_key(
        {kWindow, "Txt_merma", session.Compensa.Txt_merma, ".", "0", Txt_merma_Change}, key);
}

void Compensa_cmd_ok_Click() {
    compensate(runtime::Val(session.Compensa.Txt_merma));
    platform().windows.unload(kWindow);
}

void Compensa_cmd_cancel_Click() {
    platform().windows.unload(kWindow);
}

} // namespace velmora
