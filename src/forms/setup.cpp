#include "forms/setup.h"

#include "document/flag.h"
#include "document/number_text.h"
#include "document/options.h"
#include "document/state/program.h"
#include "document/state/settings.h"
#include "document/state/view_choices.h"
#include "document/windows/setup.h"
#include "forms/numeric_box.h"
#include "platform/dialogs.h"
#include "platform/platform.h"
#include "platform/program_windows.h"
#include "runtime/numbers.h"
#include "services/message_codes.h"
#include "services/messages.h"
#include "services/settings.h"
#include "services/view_choices.h"
#include "services/window_literals.h"

#include <algorithm>
#include <array>

namespace velmora {

namespace {

constexpr std::string_view kWindow = "setup";
constexpr int kColoursTab = 1;
constexpr double kSmallestCount = 3;

struct ColourLabel {
    std::string_view name;
    std::uint32_t SetupWindow::*label;
    std::uint32_t SettingState::*colour;
};

constexpr auto kColourLabels = std::to_array<ColourLabel>({
    {"lblcolor_fondo", &SetupWindow::lblcolor_fondo, &SettingState::cl_fondo},
    {"lblcolor_ejes", &SetupWindow::lblcolor_ejes, &SettingState::cl_ejes},
    {"lblcolor_lineas", &SetupWindow::lblcolor_lineas, &SettingState::cl_lineas},
    {"lblcolor_lineaini", &SetupWindow::lblcolor_lineaini, &SettingState::cl_linea1},
    {"lblcolor_lineados", &SetupWindow::lblcolor_lineados, &SettingState::cl_linea2},
    {"lblcolor_ptos", &SetupWindow::lblcolor_ptos, &SettingState::cl_punto},
    {"lblcolor_ptosinc", &SetupWindow::lblcolor_ptosinc, &SettingState::cl_puntosinc},
    {"lblcolor_ptosel", &SetupWindow::lblcolor_ptosel, &SettingState::cl_puntosel},
    {"lblcolor_coords", &SetupWindow::lblcolor_coords, &SettingState::cl_coords},
});

constexpr auto kLanguageNames =
    std::to_array<std::string_view>({"Español", "English", "Français", "Portugues", "Italiano"});
constexpr std::string_view kLanguageCodes = "EIFPT";

std::string_view name_of_language(std::string_view code) {
    const std::size_t at = code.size() == 1 ? kLanguageCodes.find(code) : std::string_view::npos;
    return kLanguageNames[at == std::string_view::npos ? 0 : at];
}

std::string code_of_language(std::string_view name) {
    const auto found = std::ranges::find(kLanguageNames, name);
    const auto at = found == kLanguageNames.end() ? 0 : found - kLanguageNames.begin();
    return std::string(1, kLanguageCodes[static_cast<std::size_t>(at)]);
}

void draw_preview() {
    ++state::setup.Test_Pic_draws;
}

NumericBox arc_box() {
    return {.window = kWindow,
            .control = "Txt_Def_Arc_Val",
            .text = state::setup.Txt_Def_Arc_Val,
            .reset_text = "3"};
}

NumericBox circle_box() {
    return {.window = kWindow,
            .control = "Txt_Def_Circle_Val",
            .text = state::setup.Txt_Def_Circle_Val,
            .reset_text = "4"};
}

void refuse_below_3(const NumericBox& box, int codigo) {
    if (runtime::Val(box.text) >= kSmallestCount)
        return;
    MuestraMensaje(codigo);
    reset_box(box);
}

std::int32_t whole_number(std::string_view text) {
    return runtime::CLng(text, state::program.SepDecimal);
}

void take_boxes() {
    state::settings.Def_Dec = whole_number(state::setup.Txt_Def_Dec_Val);
    state::settings.Def_Arc = whole_number(state::setup.Txt_Def_Arc_Val);
    state::settings.Def_ACircle = whole_number(state::setup.Txt_Def_Circle_Val);
    state::settings.Def_Zoom = CDbl(state::setup.Txt_Def_zoom_Val);
}

void take_language() {
    const std::string code = code_of_language(state::setup.Cmb_Lang);
    if (code == state::program.Idioma)
        return;
    MuestraMensaje(message::language_next_start);
    state::program.Idioma = code;
}

} // namespace

std::span<const std::string_view> setup_languages() {
    return kLanguageNames;
}

void setup_Load() {
    load_literals(kWindow);
}

void setup_Activate() {
    SetupWindow& window = state::setup;
    for (const ColourLabel& entry : kColourLabels)
        window.*entry.label = state::settings.*entry.colour;
    window.Txt_Def_Dec_Val = CStr(state::settings.Def_Dec);
    window.Txt_Def_Arc_Val = CStr(state::settings.Def_Arc);
    window.Txt_Def_Circle_Val = CStr(state::settings.Def_ACircle);
    window.Txt_Def_zoom_Val = CStr(state::settings.Def_Zoom);
    window.Cmb_Lang = name_of_language(state::program.Idioma);
    window.APP_Sound = state::program.Sound == 1;
    window.chk_fit_open = state::view_choices.FitOnOpen != False;
    window.Idioma = state::program.Idioma.substr(0, 1);
    draw_preview();
}

void lblcolor_Click(std::string_view label) {
    const auto entry = std::ranges::find(kColourLabels, label, &ColourLabel::name);
    if (entry == kColourLabels.end())
        return;
    const auto chosen = platform().dialogs.choose_colour(state::settings.*entry->colour);
    if (!chosen)
        return;
    state::settings.*entry->colour = *chosen;
    state::setup.*entry->label = *chosen;
    draw_preview();
}

void setup_SSTab1_Click(int tab) {
    if (tab == kColoursTab)
        draw_preview();
}

int Txt_Def_Arc_Val_KeyPress(int key) {
    return numeric_key(arc_box(), key);
}

int Txt_Def_Circle_Val_KeyPress(int key) {
    return numeric_key(circle_box(), key);
}

int Txt_Def_Dec_Val_KeyPress(int key) {
    return numeric_key({kWindow, "Txt_Def_Dec_Val", state::setup.Txt_Def_Dec_Val}, key);
}

int Txt_Def_zoom_Val_KeyPress(int key) {
    return numeric_key({kWindow, "Txt_Def_zoom_Val", state::setup.Txt_Def_zoom_Val}, key);
}

void Txt_Def_Arc_Val_LostFocus() {
    refuse_below_3(arc_box(), message::arc_minimum);
}

void Txt_Def_Circle_Val_LostFocus() {
    refuse_below_3(circle_box(), message::circle_minimum);
}

void setup_cmd_ok_Click() {
    take_boxes();
    take_language();
    state::program.Sound = state::setup.APP_Sound ? 1 : 0;
    state::view_choices.FitOnOpen = flag(state::setup.chk_fit_open);
    write_view_choices();
    GuardaSettings();
    take_defaults(Defaults::one_by_one);
    take_colours();
    platform().windows.unload(kWindow);
}

void setup_cmd_cancel_Click() {
    platform().windows.unload(kWindow);
}

} // namespace velmora
