#include "forms/cut_boxes.h"

#include "document/number_text.h"
#include "document/state/program.h"
#include "document/windows/ver_corte.h"
#include "forms/import_choices.h"
#include "platform/platform.h"
#include "platform/settings_store.h"
#include "runtime/numbers.h"
#include "runtime/text.h"
#include "services/settings.h"

#include <array>

namespace velmora {

namespace {

constexpr std::string_view kSection = "VerCorte";
constexpr double kSpeed = 200; // mm a minute, in the middle of what foam is cut at

/// A box, the key that it is kept under, and its number as shipped; 0: the box is empty then.
struct Kept {
    std::string_view key;
    std::string VerCorteWindow::*box;
    double shipped;
};

constexpr cutting::Thresholds kShipped;
constexpr auto kBoxes = std::to_array<Kept>({
    {"Quieto", &VerCorteWindow::Txt_Still, kShipped.still},
    {"Mientras", &VerCorteWindow::Txt_While, kShipped.still_while},
    {"Factor", &VerCorteWindow::Txt_Factor, kShipped.factor},
    {"Juntos", &VerCorteWindow::Txt_Close, kShipped.close},
    {"RecorridoX", &VerCorteWindow::Txt_Travel_X, 0},
    {"RecorridoY", &VerCorteWindow::Txt_Travel_Y, 0},
    {"Velocidad", &VerCorteWindow::Txt_Speed, kSpeed},
});

constexpr std::string_view kMachineKey = "Maquina";

constexpr auto kEach = std::to_array<std::size_t>({1, 5, 20, 0, 0});
constexpr std::size_t kNoJoins = 4; // the last entry of Cmb_Joins
constexpr auto kPaces = std::to_array<double>({1, 5, 20, 100});
constexpr std::size_t kUsualPace = 2;

std::string shipped_text(const Kept& kept) {
    return kept.shipped == 0 ? "" : CStr(kept.shipped);
}

std::string with_separator(std::string text) {
    return runtime::replaced(text, '.', state::program.SepDecimal);
}

/// As it is kept: with ".".
std::string kept_text(const std::string& box) {
    const double number = number_or(box, 0);
    return number == 0 ? "" : runtime::CStr(number, '.');
}

std::string stored(const Kept& kept) {
    return platform()
        .settings.get(kSection, kept.key)
        .value_or(kept.shipped == 0 ? "" : runtime::CStr(kept.shipped, '.'));
}

/// The first of the list is the one without a choice.
bool keep_machine() {
    const ChoiceList& list = state::ver_corte.Cmb_Machine;
    const auto before = platform().settings.get(kSection, kMachineKey);
    if (list.chosen.empty() || list.chosen == before.value_or(list.entries.front()))
        return false;
    platform().settings.save(kSection, kMachineKey, list.chosen);
    return true;
}

} // namespace

void fill_cut_lists(const CutWords& words) {
    VerCorteWindow& window = state::ver_corte;
    const auto fill = [&](ChoiceList& list, std::initializer_list<std::string_view> keys,
                          std::size_t chosen) {
        list.enabled = true;
        list.entries.clear();
        for (const std::string_view key : keys)
            list.entries.push_back(words.text(key));
        list.choose(chosen);
    };
    fill(window.Cmb_Source, {"stage_before", "stage_after", "stage_files"}, 0);
    fill(window.Cmb_Plane, {"plane_piece", "plane_towers"}, 0);
    fill(window.Cmb_Joins, {"joins_all", "joins_some", "joins_few", "joins_sync", "joins_none"}, 0);
    fill(window.Cmb_Pace, {"pace_machine", "pace_quick", "pace_quicker", "pace_quickest"},
         kUsualPace);
}

void read_cut_boxes() {
    for (const Kept& kept : kBoxes) {
        const double number = number_or(stored(kept), -1);
        state::ver_corte.*kept.box =
            number < 0 ? shipped_text(kept) : with_separator(kept_text(stored(kept)));
    }
    state::ver_corte.Cmb_Machine.chosen =
        platform().settings.get(kSection, kMachineKey).value_or("");
}

void keep_cut_boxes() {
    bool changed = false;
    for (const Kept& kept : kBoxes) {
        const std::string text = kept_text(state::ver_corte.*kept.box);
        if (text == stored(kept))
            continue;
        platform().settings.save(kSection, kept.key, text);
        changed = true;
    }
    changed = keep_machine() || changed;
    if (changed)
        keep_settings();
}

double number_or(const std::string& box, double otherwise) {
    const double number = number_in(box).value_or(-1);
    return number < 0 ? otherwise : number;
}

cutting::Thresholds cut_thresholds() {
    const VerCorteWindow& window = state::ver_corte;
    cutting::Thresholds thresholds;
    thresholds.still = number_or(window.Txt_Still, thresholds.still);
    thresholds.still_while = number_or(window.Txt_While, thresholds.still_while);
    thresholds.factor = number_or(window.Txt_Factor, thresholds.factor);
    thresholds.close = number_or(window.Txt_Close, thresholds.close);
    return thresholds;
}

double cut_speed() {
    return number_or(state::ver_corte.Txt_Speed, 0);
}

double cut_pace() {
    return kPaces[std::min(state::ver_corte.Cmb_Pace.place(), kPaces.size() - 1)];
}

CutStage cut_stage() {
    return static_cast<CutStage>(state::ver_corte.Cmb_Source.place());
}

void choose_stage(CutStage stage) {
    state::ver_corte.Cmb_Source.choose(static_cast<std::size_t>(stage));
}

CutPlane cut_plane() {
    return state::ver_corte.Cmb_Plane.place() == 0 ? CutPlane::piece : CutPlane::towers;
}

CutJoins cut_joins() {
    const std::size_t entry = state::ver_corte.Cmb_Joins.place();
    return {.each = kEach[std::min(entry, kEach.size() - 1)], .sync = entry != kNoJoins};
}

} // namespace velmora
