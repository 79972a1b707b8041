#include "ui/options_panel.h"

#include "document/options.h"
#include "document/windows/winoptions.h"
#include "forms/winoptions.h"

namespace velmora {

namespace {
constexpr int kRow = 4800; // twips below the main window's top, clear of the open wininfo
} // namespace

OptionsPanel::OptionsPanel(EventSink& events, SideGround& ground)
    : SidePanel(events, ground, kRow) {
    bind();
    wire();
    list_controls({"frm_Format",    "Label1",         "TxtPutCircle", "TxtPutArc",
                   "Label19",       "Label18",        "TxtPrecision", "Label2",
                   "ChkPtos",       "Txt_zoom",       "ChkPtosCtrl",  "ChkCoords",
                   "Label4",        "chk_winoptions", "SSTab1",       "ChkSCR",
                   "Chk_DATPerfil", "ChkDATSinc",     "SSFrame2",     "chk_Redim_Capture",
                   "SSFrame1",      "chk_optimize",   "SSFrame3"});
}

void OptionsPanel::bind() {
    WinOptions& state = state::winoptions;
    bindings().text(*ui.TxtPutArc, state.TxtPutArc);
    bindings().text(*ui.TxtPutCircle, state.TxtPutCircle);
    bindings().text(*ui.TxtPrecision, state.TxtPrecision);
    bindings().text(*ui.Txt_zoom, state.Txt_zoom);
    bindings().check(*ui.ChkPtos, state.ChkPtos);
    bindings().check(*ui.ChkPtosCtrl, state.ChkPtosCtrl);
    bindings().check(*ui.ChkCoords, state.ChkCoords);
    bindings().check(*ui.ChkDATSinc, state.ChkDATSinc);
    bindings().check(*ui.ChkSCR, state.ChkSCR);
    bindings().check(*ui.Chk_DATPerfil, state.Chk_DATPerfil);
    bindings().check(*ui.chk_optimize, state.chk_optimize);
    bindings().check(*ui.chk_Redim_Capture, state.chk_Redim_Capture);
    bindings().check(*ui.chk_winoptions, state.chk_winoptions);
    bind_height(winoptions_height, state.rolled_up);
}

void OptionsPanel::wire() {
    on_click(*ui.ChkPtos, ChkPtos_Click);
    on_click(*ui.ChkPtosCtrl, ChkPtosCtrl_Click);
    on_click(*ui.ChkCoords, ChkCoords_Click);
    on_click(*ui.ChkDATSinc, ChkDATSinc_Click);
    on_click(*ui.ChkSCR, ChkSCR_Click);
    on_click(*ui.Chk_DATPerfil, Chk_DATPerfil_Click);
    on_click(*ui.chk_optimize, chk_optimize_Click);
    on_click(*ui.chk_Redim_Capture, chk_Redim_Capture_Click);
    on_change(*ui.TxtPrecision, TxtPrecision_Change);
    on_key_press(*ui.TxtPutArc, TxtPutArc_KeyPress);
    on_key_press(*ui.TxtPutCircle, TxtPutCircle_KeyPress);
    on_key_press(*ui.TxtPrecision, TxtPrecision_KeyPress);
    on_key_press(*ui.Txt_zoom, Txt_zoom_KeyPress);
}

void OptionsPanel::Load() {
    winoptions_Load();
}

void OptionsPanel::Activate() {
    winoptions_Activate();
}

void OptionsPanel::Deactivate() {
    winoptions_Deactivate();
}

} // namespace velmora
