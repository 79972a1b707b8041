#include "ui/new_dat_dialog.h"

#include "document/windows/new_dat.h"
#include "forms/new_dat.h"
#include "ui/icons.h"
#include "ui/tab_stops.h"

#include <QEvent>
#include <array>

namespace velmora {

NewDatDialog::NewDatDialog(EventSink& events) : FormWindow(events) {
    draw_tiles();
    bind();
    wire();
    new TabStops(widget(), {ui.SSOpt_predef, ui.SSOpt_create, ui.Picture1_0, ui.Picture1_1,
                            ui.Picture1_2, ui.Option1, ui.Option2, ui.Option3, ui.Option4,
                            ui.Option5, ui.Option6, ui.Option7, ui.Option8});
    list_controls({"SSOpt_predef", "SSOpt_create", "frm_shapes", "Picture1(0)", "Picture1(1)",
                   "Picture1(2)", "Txt_Shape", "Frm_Create", "Option1", "Option2", "Option3",
                   "Option4", "Option5", "Option6", "Option7", "Option8", "cmd_ok", "cmd_cancel"});
}

void NewDatDialog::draw_tiles() {
    const QPalette& palette = widget().palette();
    ui.Picture1_0->setIcon(tool_icon("tile_square", palette));
    ui.Picture1_1->setIcon(tool_icon("tile_triangle", palette));
    ui.Picture1_2->setIcon(tool_icon("tile_circle", palette));
}

void NewDatDialog::bind() {
    NewDatWindow& state = state::New_Dat;
    bindings().check(*ui.SSOpt_predef, state.SSOpt_predef);
    bindings().shows<bool>([&state] { return !state.SSOpt_predef; },
                           [this](bool on) { ui.SSOpt_create->setChecked(on); });
    bindings().enabled(*ui.frm_shapes, state.frm_shapes_enabled);
    bindings().enabled(*ui.Frm_Create, state.Frm_Create_enabled);
    bindings().check(*ui.Picture1_0, state.Picture1[0]);
    bindings().check(*ui.Picture1_1, state.Picture1[1]);
    bindings().check(*ui.Picture1_2, state.Picture1[2]);
    bindings().text(*ui.Txt_Shape, state.Txt_Shape);
    const auto options =
        std::to_array<QRadioButton*>({ui.Option1, ui.Option2, ui.Option3, ui.Option4, ui.Option5,
                                      ui.Option6, ui.Option7, ui.Option8});
    for (std::size_t i = 0; i < options.size(); ++i)
        bindings().check(*options[i], state.Option[i]);
    bindings().enabled(*ui.cmd_ok, state.cmd_ok_enabled);
}

void NewDatDialog::wire() {
    on_click(*ui.SSOpt_predef, SSOpt_predef_Click);
    on_click(*ui.SSOpt_create, SSOpt_create_Click);
    const auto tiles = std::to_array<QToolButton*>({ui.Picture1_0, ui.Picture1_1, ui.Picture1_2});
    for (std::size_t i = 0; i < tiles.size(); ++i)
        on_click(*tiles[i], [index = static_cast<int>(i)] { New_Dat_Picture1_Click(index); });
    on_click(*ui.cmd_ok, New_Dat_cmd_ok_Click);
    on_click(*ui.cmd_cancel, New_Dat_cmd_cancel_Click);
}

void NewDatDialog::Load() {
    New_Dat_Load();
}

bool NewDatDialog::eventFilter(QObject* watched, QEvent* event) {
    if (watched == &widget() && event->type() == QEvent::PaletteChange)
        draw_tiles();
    return Window::eventFilter(watched, event);
}

} // namespace velmora
