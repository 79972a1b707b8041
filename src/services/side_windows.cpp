#include "services/side_windows.h"

#include "document/number_text.h"
#include "document/options.h"
#include "document/refresh.h"
#include "document/session.h"
#include "runtime/error.h"
#include "runtime/text.h"
#include "services/numeric_box.h"

#include <cmath>

namespace velmora {

namespace {

constexpr std::string_view kWindow = "winoptions";

/// The name's last four characters give way to the extension, unless the name has it somewhere.
void fit_extension(std::string& name, const std::string& extension) {
    if (name.empty())
        return;
    if (runtime::UCase(name).find(runtime::UCase(extension)) != std::string::npos)
        return;
    const auto kept = static_cast<int>(runtime::Len(name)) - 4;
    name = runtime::Left(name, kept < 0 ? 0 : kept) + extension;
}

void choose_output(Flag Session::*chosen, const char* extension) {
    session.GenDATSinc = session.GenSCR = session.GenDATPerfil = False;
    session.*chosen = True;
    session.winoptions.ChkDATSinc = session.GenDATSinc != False;
    session.winoptions.ChkSCR = session.GenSCR != False;
    session.winoptions.Chk_DATPerfil = session.GenDATPerfil != False;
    session.DefExt = extension;
    fit_extension(session.Velmora.TxtDat_File, session.DefExt);
    session.FileName = session.Velmora.TxtDat_File;
}

/// The number as the decimal type holds it: within its range, and with its 28 decimals where that
/// is less than the f64 holds.
double decimal_value(double value) {
    const std::string text = NumACadena(value);
    return std::fabs(value) < 1e-13 ? CDbl(text) : value;
}

void take_zoom() {
    std::string& text = session.winoptions.Txt_zoom;
    const char other = session.SepDecimal == '.' ? ',' : '.';
    text = runtime::replaced(text, other, session.SepDecimal);
    session.ZoomFactor = decimal_value(CDbl(text));
    Define_Layout();
    Dibuja();
}

} // namespace

void winoptions_Activate() {
    session.winoptions.rolled_up = false;
}

void winoptions_Deactivate() {
    if (!session.winoptions.chk_winoptions)
        session.winoptions.rolled_up = true;
}

void wininfo_Activate() {
    session.wininfo.rolled_up = false;
}

void wininfo_Deactivate() {
    if (!session.wininfo.chk_wininfo)
        session.wininfo.rolled_up = true;
}

int winoptions_height() {
    return session.winoptions.rolled_up ? kWinoptionsRolledUp : kSideWindowHeight;
}

int wininfo_height() {
    return session.wininfo.rolled_up ? kWininfoRolledUp : kSideWindowHeight;
}

void ChkDATSinc_Click() {
    choose_output(&Session::GenDATSinc, ".dat");
}

void ChkSCR_Click() {
    choose_output(&Session::GenSCR, ".scr");
}

void Chk_DATPerfil_Click() {
    choose_output(&Session::GenDATPerfil, ".dat");
}

void ChkPtos_Click() {
    session.ShowPtos = flag(session.winoptions.ChkPtos);
    Dibuja();
}

void ChkPtosCtrl_Click() {
    session.ShowPtosCtrl = flag(session.winoptions.ChkPtosCtrl);
    Dibuja();
}

void ChkCoords_Click() {
    session.ShowCoords = flag(session.winoptions.ChkCoords);
}

void chk_optimize_Click() {
    session.OptimizeOnGen = flag(session.winoptions.chk_optimize);
}

void chk_Redim_Capture_Click() {
    session.RedimCapture = flag(session.winoptions.chk_Redim_Capture);
}

int TxtPutArc_KeyPress(int key) {
    return numeric_key({kWindow, "TxtPutArc", session.winoptions.TxtPutArc}, key);
}

int TxtPutCircle_KeyPress(int key) {
    return numeric_key({kWindow, "TxtPutCircle", session.winoptions.TxtPutCircle}, key);
}

int TxtPrecision_KeyPress(int key) {
    return numeric_key({.window = kWindow,
                        .control = "TxtPrecision",
                        .text = session.winoptions.TxtPrecision,
                        .changed = TxtPrecision_Change},
                       key);
}

int Txt_zoom_KeyPress(int key) {
    if (key == key_code::enter)
        take_zoom();
    return numeric_key({kWindow, "Txt_zoom", session.winoptions.Txt_zoom, ".,"}, key);
}

} // namespace velmora
