#include "forms/wininfo.h"

#include "document/windows/wininfo.h"
#include "services/window_literals.h"

namespace velmora {

namespace {

constexpr int kHeight = 4245;
constexpr int kRolledUp = 180;

} // namespace

void wininfo_Load() {
    load_literals("wininfo");
}

void wininfo_Activate() {
    state::wininfo.rolled_up = false;
}

void wininfo_Deactivate() {
    if (!state::wininfo.chk_wininfo)
        state::wininfo.rolled_up = true;
}

int wininfo_height() {
    return state::wininfo.rolled_up ? kRolledUp : kHeight;
}

} // namespace velmora
