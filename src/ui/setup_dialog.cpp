#include "ui/setup_dialog.h"

#include "document/windows/setup.h"
#include "forms/setup.h"
#include "toolkit/qt_text.h"
#include "ui/controls.h"

#include <array>

namespace velmora {

SetupDialog::SetupDialog(EventSink& events) : FormWindow(events) {
    for (const std::string_view name : setup_languages())
        ui.Cmb_Lang->addItem(qt_text(name));
    bind();
    bind_colours();
    wire();
    wire_boxes();
    list_controls({"SSTab1",
                   "Label1",
                   "Txt_Def_Dec_Val",
                   "Label2",
                   "Txt_Def_Arc_Val",
                   "Label3",
                   "Txt_Def_Circle_Val",
                   "Label4",
                   "Txt_Def_zoom_Val",
                   "Label5",
                   "Cmb_Lang",
                   "APP_Sound",
                   "lblcolor_fondo",
                   "lbl_fondo",
                   "lblcolor_ejes",
                   "lbl_ejes",
                   "lblcolor_lineas",
                   "lbl_lineas",
                   "lblcolor_lineaini",
                   "lbl_lineaini",
                   "lblcolor_lineados",
                   "lbl_lineados",
                   "lblcolor_ptos",
                   "lbl_ptos",
                   "lblcolor_ptosinc",
                   "lbl_ptosinc",
                   "lblcolor_ptosel",
                   "lbl_ptosel",
                   "lblcolor_coords",
                   "lbl_coords",
                   "Test_Pic",
                   "cmd_ok",
                   "cmd_cancel",
                   "chk_fit_open"});
    ui.Txt_Def_Dec_Val->setFocus();
}

void SetupDialog::bind() {
    SetupWindow& state = state::setup;
    bindings().text(*ui.Txt_Def_Dec_Val, state.Txt_Def_Dec_Val);
    bindings().text(*ui.Txt_Def_Arc_Val, state.Txt_Def_Arc_Val);
    bindings().text(*ui.Txt_Def_Circle_Val, state.Txt_Def_Circle_Val);
    bindings().text(*ui.Txt_Def_zoom_Val, state.Txt_Def_zoom_Val);
    bindings().choice(*ui.Cmb_Lang, state.Cmb_Lang);
    bindings().check(*ui.APP_Sound, state.APP_Sound);
    bindings().check(*ui.chk_fit_open, state.chk_fit_open);
    bindings().shows<std::uint64_t>([&state] { return state.Test_Pic_draws; },
                                    [this](std::uint64_t) { ui.Test_Pic->draw(); });
}

void SetupDialog::bind_colours() {
    const SetupWindow& state = state::setup;
    const std::pair<ColourLabel*, const std::uint32_t&> labels[] = {
        {ui.lblcolor_fondo, state.lblcolor_fondo},
        {ui.lblcolor_ejes, state.lblcolor_ejes},
        {ui.lblcolor_lineas, state.lblcolor_lineas},
        {ui.lblcolor_lineaini, state.lblcolor_lineaini},
        {ui.lblcolor_lineados, state.lblcolor_lineados},
        {ui.lblcolor_ptos, state.lblcolor_ptos},
        {ui.lblcolor_ptosinc, state.lblcolor_ptosinc},
        {ui.lblcolor_ptosel, state.lblcolor_ptosel},
        {ui.lblcolor_coords, state.lblcolor_coords},
    };
    for (const auto& entry : labels) {
        ColourLabel* label = entry.first;
        const std::uint32_t* colour = &entry.second;
        bindings().shows<std::uint32_t>([colour] { return *colour; },
                                        [label](std::uint32_t now) { label->show_colour(now); });
        connect(label, &ColourLabel::clicked, this, [this, name = control_name(*label)] {
            events().run([&name] { lblcolor_Click(name); });
        });
    }
}

void SetupDialog::wire() {
    connect(ui.SSTab1, &QTabWidget::currentChanged, this,
            [this](int tab) { events().run([tab] { setup_SSTab1_Click(tab); }); });
    on_click(*ui.cmd_ok, setup_cmd_ok_Click);
    on_click(*ui.cmd_cancel, setup_cmd_cancel_Click);
}

void SetupDialog::wire_boxes() {
    on_key_press(*ui.Txt_Def_Dec_Val, Txt_Def_Dec_Val_KeyPress);
    on_key_press(*ui.Txt_Def_Arc_Val, Txt_Def_Arc_Val_KeyPress);
    on_key_press(*ui.Txt_Def_Circle_Val, Txt_Def_Circle_Val_KeyPress);
    on_key_press(*ui.Txt_Def_zoom_Val, Txt_Def_zoom_Val_KeyPress);
    on_lost_focus(*ui.Txt_Def_Arc_Val, Txt_Def_Arc_Val_LostFocus);
    on_lost_focus(*ui.Txt_Def_Circle_Val, Txt_Def_Circle_Val_LostFocus);
}

void SetupDialog::Load() {
    setup_Load();
}

void SetupDialog::Activate() {
    setup_Activate();
}

} // namespace velmora
