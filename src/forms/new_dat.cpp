#include "forms/new_dat.h"

#include "document/feedback.h"
#include "document/flag.h"
#include "document/forma.h"
#include "document/number_text.h"
#include "document/options.h"
#include "document/shown.h"
#include "document/state/document.h"
#include "document/state/program.h"
#include "document/state/view.h"
#include "document/windows/new_dat.h"
#include "document/windows/velmora.h"
#include "generators/figures.h"
#include "platform/platform.h"
#include "platform/program_windows.h"
#include "runtime/numbers.h"
#include "services/message_codes.h"
#include "services/messages.h"
#include "services/settings.h"
#include "services/window_literals.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <span>
#include <utility>

namespace velmora {

namespace {

constexpr std::string_view kWindow = "New_Dat";
constexpr std::int32_t kFewestCirclePoints = 4;
constexpr auto kNames = std::to_array<int>({message::square, message::triangle, message::circle});
constexpr int kTriangle = 1;
constexpr int kCircle = 2;

constexpr std::int16_t kSync = 1;

/// Where Option1 to Option8 start, on the unit square.
constexpr auto kStarts = std::to_array<Pto>({{0, 0, kSync, 0},
                                             {0, 1, kSync, 0},
                                             {1, 0, kSync, 0},
                                             {1, 1, kSync, 0},
                                             {0, 0.5, kSync, 0},
                                             {1, 0.5, kSync, 0},
                                             {0.5, 0, kSync, 0},
                                             {0.5, 1, kSync, 0}});

void choose(bool predefined) {
    NewDatWindow& window = state::New_Dat;
    window.SSOpt_predef = predefined;
    window.frm_shapes_enabled = predefined;
    window.Frm_Create_enabled = !predefined;
    window.cmd_ok_enabled = !predefined;
    window.Picture1.fill(false);
    window.Txt_Shape.clear();
}

/// A click on a tile passes over its errors, step by step.
template <class Step>
void ignoring_errors(Step&& step) {
    trap(std::forward<Step>(step), [](const RuntimeError&) {});
}

/// Takes an answer that is a whole number; any other leaves the number as it is.
void take_circle_points(std::string_view answer) {
    ignoring_errors([&] {
        const double number = CDbl(answer);
        if (runtime::Int(number) == number)
            state::New_Dat.circle_points = runtime::to_int32(number);
    });
}

// A prompt that can't be read is passed over too, but not the one that is asked until there are
// enough points: that loop would never end.
void ask_circle_points() {
    const std::int32_t& points = state::New_Dat.circle_points;
    ignoring_errors([&] {
        take_circle_points(
            InputBox(GetMensaje(message::ask_circle_points) + " ", box_title(), CStr(points)));
    });
    while (points < kFewestCirclePoints)
        take_circle_points(InputBox(GetMensaje(message::circle_points_too_few) + " ", box_title(),
                                    CStr(kFewestCirclePoints)));
}

void take_outline(std::span<const Pto> points) {
    Forma.Pto.redim(static_cast<std::int32_t>(points.size()) - 1);
    std::ranges::copy(points, Forma.Pto.all().begin());
    shown::TotalPtos().put(static_cast<std::int32_t>(points.size()));
}

// The shown count of a circle takes the point that closes it with it, on purpose; the next
// Define_Layout puts it right.
void take_circle() {
    const std::int32_t points = state::New_Dat.circle_points;
    take_outline(figures::circle(points).all());
    shown::TotalPtos().put(points + 1);
}

void take_figure() {
    switch (state::New_Dat.shape) {
    case kCircle:
        take_circle();
        break;
    case kTriangle:
        take_outline(figures::triangle());
        break;
    default:
        take_outline(figures::square());
    }
    shown::TotalSinc().put(1);
}

/// The start of the chosen button; the first where none is chosen.
const Pto& chosen_start() {
    const auto& options = state::New_Dat.Option;
    const auto chosen = std::ranges::find(options, true);
    return chosen == options.end()
               ? kStarts.front()
               : kStarts.at(static_cast<std::size_t>(std::distance(options.begin(), chosen)));
}

// The sync total says 0 although the start is a sync point, on purpose.
void start_by_hand() {
    state::view.PtosToInsertMode = True;
    Forma.Pto.redim(0);
    Forma.Pto[0] = chosen_start();
    state::view.BandaX = Forma.Pto[0].X;
    state::view.BandaY = Forma.Pto[0].Y;
    shown::PtosSuprimidos().put(0);
    shown::TotalSinc().put(0);
}

} // namespace

// The circle's number outlives the window: it is what the next one proposes.
void New_Dat_Load() {
    const std::int32_t last_number = state::New_Dat.circle_points;
    state::New_Dat = {};
    state::New_Dat.circle_points = last_number;
    load_literals(kWindow);
}

void SSOpt_predef_Click() {
    choose(true);
}

void SSOpt_create_Click() {
    choose(false);
}

void New_Dat_Picture1_Click(int index) {
    NewDatWindow& window = state::New_Dat;
    window.shape = static_cast<std::int16_t>(index);
    window.Picture1.fill(false);
    window.Picture1.at(static_cast<std::size_t>(index)) = true;
    ignoring_errors(
        [&] { window.Txt_Shape = GetMensaje(kNames.at(static_cast<std::size_t>(index))); });
    window.cmd_ok_enabled = true;
    if (index != kCircle)
        return;
    ask_circle_points();
    window.Txt_Shape += " (" + CStr(window.circle_points) + " pts.)";
}

void New_Dat_cmd_ok_Click() {
    LeeSettings();
    if (state::New_Dat.SSOpt_predef)
        take_figure();
    else
        start_by_hand();
    take_stored_zoom();
    state::document.PtoSel = 0;
    state::Velmora.TxtDat_File.clear();
    state::document.FileName.clear();
    state::Velmora.TxtDescDat.clear();
    platform().windows.unload(kWindow);
}

void New_Dat_cmd_cancel_Click() {
    platform().windows.unload(kWindow);
}

} // namespace velmora
