#include "forms/winoptions.h"

#include "document/flag.h"
#include "document/number_text.h"
#include "document/options.h"
#include "document/refresh.h"
#include "document/state/document.h"
#include "document/state/options.h"
#include "document/state/program.h"
#include "document/state/view.h"
#include "document/windows/velmora.h"
#include "document/windows/winoptions.h"
#include "forms/numeric_box.h"
#include "runtime/error.h"
#include "runtime/text.h"
#include "services/settings.h"
#include "services/window_literals.h"

#include <cmath>

namespace velmora {

namespace {

constexpr std::string_view kWindow = "winoptions";
constexpr int kHeight = 4245;
constexpr int kRolledUp = 300;

/// The name's last four characters give way to the extension, unless the name has it somewhere.
void fit_extension(std::string& name, const std::string& extension) {
    if (name.empty())
        return;
    if (runtime::UCase(name).find(runtime::UCase(extension)) != std::string::npos)
        return;
    const auto kept = static_cast<int>(runtime::Len(name)) - 4;
    name = runtime::Left(name, kept < 0 ? 0 : kept) + extension;
}

void choose_output(Flag OptionState::*chosen, const char* extension) {
    state::options.GenDATSinc = state::options.GenSCR = state::options.GenDATPerfil = False;
    state::options.*chosen = True;
    state::winoptions.ChkDATSinc = state::options.GenDATSinc != False;
    state::winoptions.ChkSCR = state::options.GenSCR != False;
    state::winoptions.Chk_DATPerfil = state::options.GenDATPerfil != False;
    state::document.DefExt = extension;
    fit_extension(state::Velmora.TxtDat_File, state::document.DefExt);
    state::document.FileName = state::Velmora.TxtDat_File;
}

/// The number as the decimal type holds it: within its range, and with its 28 decimals where that
/// is less than the f64 holds.
double decimal_value(double value) {
    const std::string text = NumACadena(value);
    return std::fabs(value) < 1e-13 ? CDbl(text) : value;
}

void take_zoom() {
    std::string& text = state::winoptions.Txt_zoom;
    const char other = state::program.SepDecimal == '.' ? ',' : '.';
    text = runtime::replaced(text, other, state::program.SepDecimal);
    state::view.ZoomFactor = decimal_value(CDbl(text));
    Define_Layout();
    Dibuja();
}

} // namespace

void winoptions_Load() {
    load_literals(kWindow);
    LeeSettings();
    take_defaults();
    WinOptions& box = state::winoptions;
    box.ChkPtos = state::view.ShowPtos != False;
    box.ChkPtosCtrl = state::view.ShowPtosCtrl != False;
    box.ChkCoords = state::view.ShowCoords != False;
    box.ChkDATSinc = state::options.GenDATSinc != False;
    box.ChkSCR = state::options.GenSCR != False;
    box.Chk_DATPerfil = state::options.GenDATPerfil != False;
    box.chk_optimize = state::options.OptimizeOnGen != False;
    box.chk_Redim_Capture = state::options.RedimCapture != False;
}

void winoptions_Activate() {
    state::winoptions.rolled_up = false;
}

void winoptions_Deactivate() {
    if (!state::winoptions.chk_winoptions)
        state::winoptions.rolled_up = true;
}

int winoptions_height() {
    return state::winoptions.rolled_up ? kRolledUp : kHeight;
}

void ChkDATSinc_Click() {
    choose_output(&OptionState::GenDATSinc, ".dat");
}

void ChkSCR_Click() {
    choose_output(&OptionState::GenSCR, ".scr");
}

void Chk_DATPerfil_Click() {
    choose_output(&OptionState::GenDATPerfil, ".dat");
}

void ChkPtos_Click() {
    state::view.ShowPtos = flag(state::winoptions.ChkPtos);
    Dibuja();
}

void ChkPtosCtrl_Click() {
    state::view.ShowPtosCtrl = flag(state::winoptions.ChkPtosCtrl);
    Dibuja();
}

void ChkCoords_Click() {
    state::view.ShowCoords = flag(state::winoptions.ChkCoords);
}

void chk_optimize_Click() {
    state::options.OptimizeOnGen = flag(state::winoptions.chk_optimize);
}

void chk_Redim_Capture_Click() {
    state::options.RedimCapture = flag(state::winoptions.chk_Redim_Capture);
}

int TxtPutArc_KeyPress(int key) {
    return numeric_key({kWindow, "TxtPutArc", state::winoptions.TxtPutArc}, key);
}

int TxtPutCircle_KeyPress(int key) {
    return numeric_key({kWindow, "TxtPutCircle", state::winoptions.TxtPutCircle}, key);
}

int TxtPrecision_KeyPress(int key) {
    return numeric_key({.window = kWindow,
                        .control = "TxtPrecision",
                        .text = state::winoptions.TxtPrecision,
                        .changed = TxtPrecision_Change},
                       key);
}

int Txt_zoom_KeyPress(int key) {
    if (key == key_code::enter)
        take_zoom();
    return numeric_key({kWindow, "Txt_zoom", state::winoptions.Txt_zoom, ".,"}, key);
}

} // namespace velmora
