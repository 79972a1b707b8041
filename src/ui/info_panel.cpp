#include "ui/info_panel.h"

#include "document/windows/wininfo.h"
#include "forms/wininfo.h"
#include "ui/icons.h"

namespace velmora {

namespace {
constexpr int kRow = 0; // twips below the main window's top
constexpr int kPictureSize = 24;
} // namespace

InfoPanel::InfoPanel(EventSink& events, SideGround& ground) : SidePanel(events, ground, kRow) {
    ui.Image1->setAccessibleName("Velmora");
    ui.Image1->setPixmap(app_icon().pixmap(kPictureSize));
    bind();
    list_controls(
        {"TxtAcadFile",  "TxtOpensw",       "txtAcadVer",       "Frame3",     "TxtNArcs",
         "TxtNCircles",  "TxtNLWPolylines", "TxtProcesed",      "TxtNlines",  "TxtNSplines",
         "Label1",       "Label2",          "Label3",           "Label4",     "Label5",
         "Label6",       "Label7",          "Label8",           "Label9",     "Label10",
         "Label11",      "Label12",         "Label13",          "Label14",    "Label15",
         "Label16",      "ShpAcadOpen",     "ShpAcadDocLoaded", "Frame1",     "TxtTotalCtrlPtos",
         "Txt_longitud", "Txt_Altura",      "TxtOrigX",         "TxtOrigY",   "TxtTotalPtos",
         "TxtPtosSupr",  "Image1",          "SSTab1",           "chk_wininfo"});
}

void InfoPanel::bind() {
    WinInfo& state = state::wininfo;
    const std::pair<QLineEdit*, std::string*> boxes[] = {
        {ui.TxtAcadFile, &state.TxtAcadFile},   {ui.TxtOpensw, &state.TxtOpensw},
        {ui.txtAcadVer, &state.txtAcadVer},     {ui.TxtNArcs, &state.TxtNArcs},
        {ui.TxtNCircles, &state.TxtNCircles},   {ui.TxtNLWPolylines, &state.TxtNLWPolylines},
        {ui.TxtProcesed, &state.TxtProcesed},   {ui.TxtNlines, &state.TxtNlines},
        {ui.TxtNSplines, &state.TxtNSplines},   {ui.TxtTotalCtrlPtos, &state.TxtTotalCtrlPtos},
        {ui.Txt_longitud, &state.Txt_longitud}, {ui.Txt_Altura, &state.Txt_Altura},
        {ui.TxtOrigX, &state.TxtOrigX},         {ui.TxtOrigY, &state.TxtOrigY},
        {ui.TxtTotalPtos, &state.TxtTotalPtos}, {ui.TxtPtosSupr, &state.TxtPtosSupr},
    };
    for (const auto& [box, field] : boxes) {
        bindings().text(*box, *field);
    }
    bindings().check(*ui.chk_wininfo, state.chk_wininfo);
    const std::pair<Lamp*, const std::uint32_t*> lamps[] = {
        {ui.ShpAcadOpen, &state.ShpAcadOpen},
        {ui.ShpAcadDocLoaded, &state.ShpAcadDocLoaded},
    };
    for (const auto& [lamp, colour] : lamps)
        bindings().shows<std::uint32_t>([colour] { return *colour; },
                                        [lamp](std::uint32_t shown) { lamp->set_colour(shown); });
    bind_height(wininfo_height, state.rolled_up);
}

void InfoPanel::Load() {
    wininfo_Load();
}

void InfoPanel::Activate() {
    wininfo_Activate();
}

void InfoPanel::Deactivate() {
    wininfo_Deactivate();
}

} // namespace velmora
