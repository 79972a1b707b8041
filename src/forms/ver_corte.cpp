#include "forms/ver_corte.h"

#include "document/state/document.h"
#include "document/state/program.h"
#include "document/state/workbench.h"
#include "document/windows/ajuste.h"
#include "document/windows/ver_corte.h"
#include "forms/cut_boxes.h"
#include "forms/cut_files.h"
#include "forms/cut_program.h"
#include "forms/cut_words.h"
#include "platform/dialogs.h"
#include "platform/platform.h"
#include "platform/program_windows.h"
#include "runtime/paths.h"
#include "services/window_literals.h"

#include <algorithm>
#include <cmath>
#include <string_view>
#include <utility>

namespace velmora {

namespace {

constexpr std::string_view kWindow = "ver_corte";
/// In the list behind the entries of a kind: how many more there are. It leads nowhere.
constexpr std::size_t kNoEntry = static_cast<std::size_t>(-1);

Distances distances() {
    const WorkbenchState& bench = state::workbench;
    return {.X = bench.OptX, .Y = bench.OptY, .Z = bench.OptZ};
}

/// The entry of the report behind each row of the list.
std::vector<std::size_t> entries_of_rows(const cutting::CutReport& report) {
    std::vector<std::size_t> rows;
    for (std::size_t i = 0; i < report.entries.size(); ++i) {
        rows.push_back(i);
        const cutting::Finding kind = report.entries[i].kind;
        const bool last = i + 1 == report.entries.size() || report.entries[i + 1].kind != kind;
        if (last && report.count(kind) > cutting::CutReport::kept_of_each)
            rows.push_back(kNoEntry);
    }
    return rows;
}

void show_list(const CutWords& words) {
    VerCorteWindow& window = state::ver_corte;
    const cutting::CutReport& report = window.cut->report;
    window.Lst_Look.clear();
    window.looked_at.reset();
    cutting::Finding kind = cutting::Finding::last_;
    for (const std::size_t entry : entries_of_rows(report)) {
        if (entry != kNoEntry)
            kind = report.entries[entry].kind;
        window.Lst_Look.push_back(
            entry != kNoEntry ? words.entry(report.entries[entry])
                              : words.more(report.count(kind) - cutting::CutReport::kept_of_each));
    }
    window.lbl_look = words.total(report.total());
    ++window.lists;
}

void show_place(const CutWords& words) {
    VerCorteWindow& window = state::ver_corte;
    window.lbl_place = words.place(*window.cut, window.along, cut_speed());
}

void show_numbers(const CutWords& words) {
    VerCorteWindow& window = state::ver_corte;
    window.Tbl_Numbers = words.numbers(*window.cut);
    window.lbl_fit = words.fit(*window.cut, number_or(window.Txt_Travel_X, 0),
                               number_or(window.Txt_Travel_Y, 0));
    window.lbl_time = words.time(*window.cut, cut_speed());
    show_place(words);
}

void put_at_hand(cutting::Sides sides, CutStage stage, const CutWords& words) {
    VerCorteWindow& window = state::ver_corte;
    window.cut = std::make_shared<const CutAtHand>(
        cut_of(std::move(sides), stage, distances(), cut_thresholds()));
    window.lbl_note = words.lack(*window.cut);
    window.has_wire = window.cut->has_wire() && window.cut->drawable();
    window.Cmd_Template_enabled = window.cut->drawable();
    window.lbl_written.clear();
    window.along = 0;
    window.playing = false;
    ++window.pictures;
    show_list(words);
    show_numbers(words);
    show_machine(words);
}

std::string both_names(const std::string& one, const std::string& other) {
    if (one.empty() || other.empty())
        return runtime::file_name(one + other);
    return runtime::file_name(one) + ", " + runtime::file_name(other);
}

void show_workbench(CutStage stage, const CutWords& words) {
    const AjusteWindow& bench = state::ajuste;
    state::ver_corte.Txt_Files = stage == CutStage::before
                                     ? both_names(bench.txt_fileA, bench.Txt_FileB)
                                     : both_names(bench.Txt_File_A2, bench.Txt_File_B2);
    put_at_hand(workbench_sides(stage), stage, words);
}

void show_files(const CutWords& words) {
    VerCorteWindow& window = state::ver_corte;
    window.Txt_Files = both_names(window.file_A, window.file_B);
    CutFiles files = read_cut_files(window.file_A, window.file_B, words);
    put_at_hand(std::move(files.sides), CutStage::files, words);
    if (!files.fault.empty())
        window.lbl_note = files.fault;
}

std::string ask_for_side(std::string_view title, const CutWords& words) {
    if (state::document.LastDir.empty())
        state::document.LastDir = state::program.program_folder;
    return platform().dialogs.open_file({.title = words.text(title),
                                         .filter = words.text("files_filter"),
                                         .folder = state::document.LastDir,
                                         .name = {}});
}

/// What is chosen already stays where the user gives up.
bool ask_for_files(const CutWords& words) {
    const std::string side_A = ask_for_side("files_title_A", words);
    if (side_A.empty())
        return false;
    std::string side_B;
    if (!holds_both_sides(side_A)) {
        side_B = ask_for_side("files_title_B", words);
        if (side_B.empty())
            return false;
    }
    state::ver_corte.file_A = side_A;
    state::ver_corte.file_B = side_B;
    return true;
}

void show_stage(const CutWords& words) {
    if (cut_stage() == CutStage::files)
        show_files(words);
    else
        show_workbench(cut_stage(), words);
}

void go_to(double along, const CutWords& words) {
    VerCorteWindow& window = state::ver_corte;
    if (!window.has_wire)
        return;
    window.along = std::clamp(along, 0.0, window.cut->wire.length());
    show_place(words);
}

} // namespace

void ver_corte_Load() {
    const CutWords words;
    state::ver_corte = {};
    load_literals(kWindow);
    fill_cut_lists(words);
    read_cut_boxes();
    offer_machines(words);
    const bool adjusted = state::workbench.PtosA2.size() > 1;
    choose_stage(adjusted ? CutStage::after : CutStage::before);
    show_stage(words);
}

void ver_corte_Unload() {
    VerCorteWindow& window = state::ver_corte;
    window.playing = window.has_wire = false;
    window.cut.reset();
    keep_cut_boxes();
}

void ver_corte_source_Change() {
    if (cut_stage() == CutStage::files && state::ver_corte.file_A.empty())
        ver_corte_files_Click();
    else
        show_stage(CutWords());
}

void ver_corte_files_Click() {
    const CutWords words;
    state::ver_corte.playing = false;
    const CutStage before = state::ver_corte.cut->stage;
    const bool chosen = ask_for_files(words);
    choose_stage(chosen ? CutStage::files : before);
    if (chosen)
        show_stage(words);
}

void ver_corte_picture_Change() {
    ++state::ver_corte.pictures;
}

void ver_corte_threshold_Change() {
    VerCorteWindow& window = state::ver_corte;
    if (window.cut == nullptr)
        return;
    CutAtHand cut = *window.cut;
    cut.report = report_on(cut, cut_thresholds());
    window.cut = std::make_shared<const CutAtHand>(std::move(cut));
    show_list(CutWords());
}

void ver_corte_travel_Change() {
    if (state::ver_corte.cut != nullptr)
        show_numbers(CutWords());
}

const cutting::Entry* entry_looked_at() {
    const VerCorteWindow& window = state::ver_corte;
    if (!window.looked_at || window.cut == nullptr)
        return nullptr;
    const std::vector<std::size_t> rows = entries_of_rows(window.cut->report);
    if (*window.looked_at >= rows.size() || rows[*window.looked_at] == kNoEntry)
        return nullptr;
    return &window.cut->report.entries[rows[*window.looked_at]];
}

void ver_corte_look_Click(std::size_t row) {
    VerCorteWindow& window = state::ver_corte;
    if (row >= window.Lst_Look.size())
        return;
    window.looked_at = row;
    window.playing = false;
    if (const cutting::Entry* entry = entry_looked_at())
        ver_corte_go_to_point(entry->first);
    ++window.looks;
}

void ver_corte_go_to_share(double share) {
    if (state::ver_corte.has_wire)
        go_to(share * state::ver_corte.cut->wire.length(), CutWords());
}

void ver_corte_go_to_point(std::size_t point) {
    const VerCorteWindow& window = state::ver_corte;
    if (window.has_wire)
        go_to(window.cut->wire.along[std::min(point, window.cut->wire.size() - 1)], CutWords());
}

void ver_corte_step(int points) {
    const VerCorteWindow& window = state::ver_corte;
    if (!window.has_wire)
        return;
    const cutting::WirePlace at = place_at(window.cut->wire, window.along);
    const auto last = static_cast<long long>(window.cut->wire.size()) - 1;
    // Between two points the way back leads to the one that it came from.
    const long long from = static_cast<long long>(at.step) + (points < 0 && at.part > 0 ? 1 : 0) +
                           (points > 0 && at.part >= 1 ? 1 : 0);
    ver_corte_go_to_point(static_cast<std::size_t>(std::clamp(from + points, 0LL, last)));
}

void ver_corte_play_Click() {
    VerCorteWindow& window = state::ver_corte;
    window.playing = window.playing && window.has_wire && cut_speed() > 0;
    window.looked_at.reset();
    ++window.looks;
    if (window.playing && window.along >= window.cut->wire.length())
        go_to(0, CutWords());
}

void ver_corte_tick(double seconds) {
    VerCorteWindow& window = state::ver_corte;
    if (!window.playing)
        return;
    constexpr double seconds_a_minute = 60;
    const double way = cut_speed() * cut_pace() * seconds / seconds_a_minute;
    go_to(window.along + way, CutWords());
    window.playing = cut_speed() > 0 && window.along < window.cut->wire.length();
}

void ver_corte_machine_Change() {
    show_machine(CutWords());
}

void ver_corte_gcode_Click() {
    state::ver_corte.playing = false;
    write_cut_program(CutWords());
}

void ver_corte_pdf_Click(const MakePdf& make_pdf) {
    state::ver_corte.playing = false;
    save_template_pdf(CutWords(), make_pdf);
}

void ver_corte_svg_Click() {
    state::ver_corte.playing = false;
    save_template_svg(CutWords());
}

void ver_corte_cmd_exit_Click() {
    platform().windows.unload(kWindow);
}

} // namespace velmora
