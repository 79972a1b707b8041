#include "ui/ver_corte_dialog.h"

#include "forms/cut_boxes.h"
#include "forms/ver_corte.h"
#include "toolkit/qt_text.h"
#include "ui/program_style.h"
#include "ui/sheet_pdf.h"

#include <QRegularExpressionValidator>

namespace velmora {

namespace {

constexpr QSize kSizeAtStart(1080, 760);
constexpr int kTick = 25; // milliseconds
constexpr double kMillisecond = 0.001;

CutShown shown_now() {
    const VerCorteWindow& state = state::ver_corte;
    const cutting::Entry* entry = entry_looked_at();
    return {.cut = state.cut,
            .plane = cut_plane(),
            .joins = cut_joins(),
            .along = state.along,
            .mark = entry == nullptr ? std::nullopt : std::optional(*entry)};
}

int place_on(const QSlider& slider) {
    const VerCorteWindow& state = state::ver_corte;
    const double length = state.has_wire ? state.cut->wire.length() : 0;
    return length > 0 ? qRound(state.along / length * slider.maximum()) : 0;
}

} // namespace

VerCorteDialog::VerCorteDialog(EventSink& events)
    : FormWindow(events), timer_(*new QTimer(&widget())) {
    timer_.setInterval(kTick);
    static const QRegularExpression number(QStringLiteral("[0-9]{0,7}([.,][0-9]{0,4})?"));
    for (QLineEdit* box : {ui.Txt_Still, ui.Txt_While, ui.Txt_Factor, ui.Txt_Close, ui.Txt_Travel_X,
                           ui.Txt_Travel_Y, ui.Txt_Speed})
        box->setValidator(new QRegularExpressionValidator(number, box));
    bind();
    wire();
    list_controls({"lbl_source",   "Cmb_Source",   "Cmd_Files",    "Txt_Files",    "lbl_note",
                   "lbl_plane",    "Cmb_Plane",    "lbl_joins",    "Cmb_Joins",    "Pic_Sides",
                   "Cmd_Plan",     "Cmd_Front",    "Cmd_Side",     "Cmd_Space",    "Cmd_Fit",
                   "Pic_Space",    "Tab_Cut",      "lbl_look",     "Lst_Look",     "lbl_still",
                   "Txt_Still",    "lbl_while",    "Txt_While",    "lbl_factor",   "Txt_Factor",
                   "lbl_close",    "Txt_Close",    "Tbl_Numbers",  "lbl_time",     "lbl_fit",
                   "lbl_travel_X", "Txt_Travel_X", "lbl_travel_Y", "Txt_Travel_Y", "lbl_speed",
                   "Txt_Speed",    "Frm_Gcode",    "lbl_machine",  "Cmb_Machine",  "lbl_wrong",
                   "Cmd_Gcode",    "Frm_Template", "Chk_Points",   "Chk_Numbers",  "Cmd_Pdf",
                   "Cmd_Svg",      "lbl_written",  "Cmd_Play",     "Sld_Cut",      "lbl_pace",
                   "Cmb_Pace",     "lbl_place",    "cmd_exit"});
    ui.Cmb_Source->setFocus();
}

void VerCorteDialog::bind() {
    VerCorteWindow& state = state::ver_corte;
    bindings().text(*ui.Txt_Files, state.Txt_Files);
    bindings().label(*ui.lbl_place, state.lbl_place);
    for (const auto& [label, text] : {std::pair(ui.lbl_note, &state.lbl_note),
                                      {ui.lbl_look, &state.lbl_look},
                                      {ui.lbl_time, &state.lbl_time},
                                      {ui.lbl_fit, &state.lbl_fit},
                                      {ui.lbl_wrong, &state.lbl_wrong},
                                      {ui.lbl_written, &state.lbl_written}}) {
        bindings().label(*label, *text);
        bindings().shows<bool>([text = text] { return !text->empty(); },
                               [label = label](bool told) { label->setVisible(told); });
    }
    for (const auto& [box, text] : {std::pair(ui.Txt_Still, &state.Txt_Still),
                                    {ui.Txt_While, &state.Txt_While},
                                    {ui.Txt_Factor, &state.Txt_Factor},
                                    {ui.Txt_Close, &state.Txt_Close},
                                    {ui.Txt_Travel_X, &state.Txt_Travel_X},
                                    {ui.Txt_Travel_Y, &state.Txt_Travel_Y},
                                    {ui.Txt_Speed, &state.Txt_Speed}})
        bindings().text(*box, *text);
    for (const auto& [box, list] : {std::pair(ui.Cmb_Source, &state.Cmb_Source),
                                    {ui.Cmb_Plane, &state.Cmb_Plane},
                                    {ui.Cmb_Joins, &state.Cmb_Joins},
                                    {ui.Cmb_Pace, &state.Cmb_Pace},
                                    {ui.Cmb_Machine, &state.Cmb_Machine}})
        bind_list(*box, *list);
    bindings().shows<std::uint64_t>(
        [&state] { return state.lists; },
        [this, &state](std::uint64_t) { ui.Lst_Look->show_rows(state.Lst_Look); });
    bindings().shows<std::vector<std::vector<std::string>>>(
        [&state] { return state.Tbl_Numbers; },
        [this](const std::vector<std::vector<std::string>>& rows) {
            ui.Tbl_Numbers->show_rows(rows);
        });
    bindings().enabled(*ui.Cmd_Gcode, state.Cmd_Gcode_enabled);
    bindings().enabled(*ui.Cmd_Pdf, state.Cmd_Template_enabled);
    bindings().enabled(*ui.Cmd_Svg, state.Cmd_Template_enabled);
    bindings().check(*ui.Chk_Points, state.Chk_Points);
    bindings().check(*ui.Chk_Numbers, state.Chk_Numbers);
    bind_pictures();
    bind_wire();
}

void VerCorteDialog::bind_pictures() {
    const VerCorteWindow& state = state::ver_corte;
    bindings().shows<std::shared_ptr<const CutAtHand>>(
        [&state] { return state.cut; },
        [this, &state](const std::shared_ptr<const CutAtHand>& cut) {
            if (cut == nullptr)
                return;
            for (CutPic* pic :
                 {static_cast<CutPic*>(ui.Pic_Sides), static_cast<CutPic*>(ui.Pic_Space)}) {
                if (pictures_ == state.pictures)
                    pic->show_again(shown_now());
                else
                    pic->show_cut(shown_now(), qt_text(state.lbl_note));
            }
            pictures_ = state.pictures;
        });
    bindings().shows<std::pair<std::size_t, std::size_t>>(
        [&state] { return std::pair(state.Cmb_Plane.place(), state.Cmb_Joins.place()); },
        [this, plane = std::size_t(0)](std::pair<std::size_t, std::size_t> now) mutable {
            if (state::ver_corte.cut == nullptr)
                return;
            ui.Pic_Sides->show_again(shown_now());
            if (std::exchange(plane, now.first) != now.first)
                ui.Pic_Sides->show_all();
        });
    bindings().shows<std::uint64_t>([&state] { return state.looks; },
                                    [this](std::uint64_t) { show_mark(); });
}

void VerCorteDialog::bind_wire() {
    VerCorteWindow& state = state::ver_corte;
    bindings().shows<double>([&state] { return state.along; },
                             [this](double along) {
                                 ui.Pic_Sides->show_wire(along);
                                 ui.Pic_Space->show_wire(along);
                             });
    bindings().shows<int>([this] { return place_on(*ui.Sld_Cut); },
                          [this](int place) {
                              const QSignalBlocker quiet(*ui.Sld_Cut);
                              ui.Sld_Cut->setValue(place);
                          });
    bindings().check(*ui.Cmd_Play, state.playing);
    bindings().shows<bool>([&state] { return state.playing; },
                           [this](bool playing) { play_or_stop(playing); });
    for (QWidget* widget : {static_cast<QWidget*>(ui.Cmd_Play), static_cast<QWidget*>(ui.Sld_Cut)})
        bindings().enabled(*widget, state.has_wire);
}

void VerCorteDialog::show_mark() {
    const cutting::Entry* entry = entry_looked_at();
    const auto mark = entry == nullptr ? std::nullopt : std::optional(*entry);
    ui.Pic_Sides->show_mark(mark);
    ui.Pic_Space->show_mark(mark);
}

void VerCorteDialog::play_or_stop(bool playing) {
    if (!playing)
        return timer_.stop();
    since_.start();
    timer_.start();
}

void VerCorteDialog::wire() {
    on_choice(*ui.Cmb_Source, ver_corte_source_Change);
    on_choice(*ui.Cmb_Plane, ver_corte_picture_Change);
    on_choice(*ui.Cmb_Joins, ver_corte_picture_Change);
    on_choice(*ui.Cmb_Pace, ver_corte_picture_Change);
    on_click(*ui.Cmd_Files, ver_corte_files_Click);
    for (QLineEdit* box : {ui.Txt_Still, ui.Txt_While, ui.Txt_Factor, ui.Txt_Close})
        on_change(*box, ver_corte_threshold_Change);
    for (QLineEdit* box : {ui.Txt_Travel_X, ui.Txt_Travel_Y, ui.Txt_Speed})
        on_change(*box, ver_corte_travel_Change);
    connect(ui.Lst_Look, &LookList::row_chosen, this, [this](int row) {
        events().run([row] { ver_corte_look_Click(static_cast<std::size_t>(row)); });
    });
    connect(ui.Sld_Cut, &QSlider::valueChanged, this, [this](int value) {
        const double share = static_cast<double>(value) / ui.Sld_Cut->maximum();
        events().run([share] { ver_corte_go_to_share(share); });
    });
    on_click(*ui.Cmd_Play, ver_corte_play_Click);
    connect(&timer_, &QTimer::timeout, this, [this] {
        const double seconds = static_cast<double>(since_.restart()) * kMillisecond;
        if (events().idle())
            events().run([seconds] { ver_corte_tick(seconds); });
    });
    on_choice(*ui.Cmb_Machine, ver_corte_machine_Change);
    on_click(*ui.Cmd_Gcode, ver_corte_gcode_Click);
    on_click(*ui.Cmd_Pdf, [] { ver_corte_pdf_Click(pdf_of); });
    on_click(*ui.Cmd_Svg, ver_corte_svg_Click);
    on_click(*ui.cmd_exit, ver_corte_cmd_exit_Click);
    wire_pictures();
}

void VerCorteDialog::wire_pictures() {
    for (CutPic* pic : {static_cast<CutPic*>(ui.Pic_Sides), static_cast<CutPic*>(ui.Pic_Space)}) {
        connect(pic, &CutPic::point_clicked, this, [this](int point) {
            events().run([point] { ver_corte_go_to_point(static_cast<std::size_t>(point)); });
        });
        connect(pic, &CutPic::stepped, this,
                [this](int points) { events().run([points] { ver_corte_step(points); }); });
    }
    for (const auto& [button, turn] : {std::pair(ui.Cmd_Plan, cutview::kPlan),
                                       {ui.Cmd_Front, cutview::kFront},
                                       {ui.Cmd_Side, cutview::kSide},
                                       {ui.Cmd_Space, cutview::kInSpace}})
        connect(button, &QAbstractButton::clicked, this,
                [this, turn = turn] { ui.Pic_Space->turn_to(turn); });
    connect(ui.Cmd_Fit, &QAbstractButton::clicked, this, [this] {
        ui.Pic_Sides->show_all();
        ui.Pic_Space->show_all();
    });
}

void VerCorteDialog::Load() {
    ver_corte_Load();
}

void VerCorteDialog::Unload() {
    timer_.stop();
    ver_corte_Unload();
}

void VerCorteDialog::place() {
    place_in_middle(kSizeAtStart);
}

} // namespace velmora
