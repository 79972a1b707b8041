#include "forms/importar.h"

#include "document/forma.h"
#include "document/number_text.h"
#include "document/state/document.h"
#include "document/state/loading.h"
#include "document/state/program.h"
#include "document/text_box.h"
#include "document/windows/importar.h"
#include "document/windows/velmora.h"
#include "forms/import_choices.h"
#include "forms/import_words.h"
#include "import/import_bytes.h"
#include "import/kind.h"
#include "import/order.h"
#include "platform/dialogs.h"
#include "platform/platform.h"
#include "platform/program_windows.h"
#include "runtime/numbers.h"
#include "runtime/paths.h"
#include "runtime/whole_file.h"
#include "services/window_literals.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <filesystem>
#include <iterator>
#include <optional>
#include <utility>
#include <vector>

namespace velmora {

namespace {

using imports::Chain;
using imports::Imported;
using runtime::WholeFileFault;

constexpr std::string_view kWindow = "importar";
/// Each change of a choice reads it again, and the window waits meanwhile; velmora-import takes
/// larger ones.
constexpr std::uintmax_t kLargestFile = 200'000'000;
constexpr std::string_view kAllFiles = "|*";
constexpr std::int16_t kSync = 1;

std::string_view key_of(WholeFileFault fault) {
    switch (fault) {
    case WholeFileFault::missing:
        return "note_missing";
    case WholeFileFault::no_regular_file:
        return "note_no_file";
    case WholeFileFault::too_large:
        return "note_too_large";
    case WholeFileFault::unreadable:
        return "note_unreadable";
    case WholeFileFault::none:
        break;
    }
    return "note_empty";
}

std::string_view key_of(imports::Question question) {
    constexpr auto keys = std::to_array<std::string_view>(
        {"ask_kind", "ask_element", "ask_order", "ask_scale", "ask_unit", "ask_axes"});
    return keys[static_cast<std::size_t>(question)];
}

std::vector<ImportarPoint> plain(const std::vector<imports::Point>& points) {
    std::vector<ImportarPoint> result;
    result.reserve(points.size());
    for (const imports::Point& point : points)
        result.push_back({point.X, point.Y});
    return result;
}

Chain chain_of(const ImportarChain& shown) {
    Chain chain{.points = {}, .closed = shown.closed, .name = {}, .line = 0};
    chain.points.reserve(shown.points.size());
    for (const ImportarPoint& point : shown.points)
        chain.points.push_back({point.X, point.Y});
    return chain;
}

/// Those taken, in the order in which they were.
std::vector<Chain> chains_taken() {
    std::vector<const ImportarChain*> taken;
    for (const ImportarChain& chain : state::importar.Lst_Chains)
        if (chain.taken > 0)
            taken.push_back(&chain);
    std::ranges::sort(taken, {}, &ImportarChain::taken);
    std::vector<Chain> chains;
    std::ranges::transform(taken, std::back_inserter(chains),
                           [](const ImportarChain* chain) { return chain_of(*chain); });
    return chains;
}

imports::Box box_of_outline() {
    imports::Box box;
    for (const ImportarPoint& point : state::importar.outline)
        box.add({point.X, point.Y});
    return box;
}

/// By the factor, or to the chord in millimetres.
double chosen_factor() {
    const double width = box_of_outline().width();
    if (const auto chord = number_in(state::importar.Txt_Chord.text); chord && width > 0)
        return *chord / width;
    return number_in(state::importar.Txt_Scale.text).value_or(1);
}

bool fits_the_program() {
    return box_of_outline().size() * state::importar.factor <= state::loading.LimiteCoord;
}

/// What stands in the way of OK; empty where nothing does.
std::string hindrance(const ImportWords& words) {
    const ImportarWindow& window = state::importar;
    if (!window.fault.empty())
        return window.fault;
    if (!import_boxes_hold_numbers())
        return words.text("note_no_number");
    if (window.question_needed)
        return window.question;
    if (window.Lst_Chains.empty())
        return words.text("note_nothing_found");
    if (window.outline.size() < 2)
        return words.text("note_none_taken");
    return fits_the_program() ? ""
                              : words.text_with("note_too_wide", CStr(state::loading.LimiteCoord));
}

/// How wide and high what is taken will be.
std::string size_words(const ImportWords& words) {
    constexpr int decimals = 2;
    const double factor = state::importar.factor;
    const imports::Box box = box_of_outline();
    const auto side = [&](double length) {
        return CStr(runtime::Round(length * factor, decimals));
    };
    return words.text_with("note_size", std::to_string(state::importar.outline.size()) + ", " +
                                            side(box.width()) + " x " + side(box.height()));
}

void show_notes(const ImportWords& words) {
    ImportarWindow& window = state::importar;
    const std::string in_the_way = hindrance(words);
    window.cmd_ok_enabled = in_the_way.empty();
    window.lbl_note = in_the_way;
    if (!in_the_way.empty())
        return;
    window.lbl_note = size_words(words);
    if (!window.question.empty())
        window.lbl_note += "\n" + window.question;
}

void arrange(const ImportWords& words) {
    ImportarWindow& window = state::importar;
    const std::vector<Chain> taken = chains_taken();
    Chain outline = imports::joined(taken);
    put_in_chosen_order(outline, words);
    window.outline = plain(outline.points);
    window.outline_closed = outline.closed;
    window.factor = import_boxes_hold_numbers() ? chosen_factor() : 1;
    ++window.pictures;
    show_notes(words);
}

void show_chains(const Imported& imported, const ImportWords& words) {
    std::vector<ImportarChain>& list = state::importar.Lst_Chains;
    // Another tolerance finds the same chains: what was taken of them stays taken.
    const bool as_before = list.size() == imported.chains.size();
    std::vector<ImportarChain> before = std::exchange(list, {});
    list.reserve(imported.chains.size());
    for (std::size_t i = 0; i < imported.chains.size(); ++i) {
        const Chain& chain = imported.chains[i];
        list.push_back({.points = plain(chain.points),
                        .closed = chain.closed,
                        .text = words.chain(chain, i + 1, imported.unit_mm > 0),
                        .taken = as_before ? before[i].taken : (i == 0 ? 1U : 0U)});
    }
}

void show_question(const Imported& imported, const ImportWords& words) {
    ImportarWindow& window = state::importar;
    auto asked = std::ranges::find_if(imported.asks, &imports::Ask::needed);
    window.question_needed = asked != imported.asks.end();
    if (!window.question_needed)
        asked = std::ranges::find_if(imported.asks, [](const imports::Ask& ask) {
            return ask.question != imports::Question::element;
        });
    window.question.clear();
    if (asked == imported.asks.end())
        return;
    window.question = words.text_with(key_of(asked->question), std::to_string(asked->line));
}

void read_again(const ImportWords& words) {
    ImportarWindow& window = state::importar;
    const bool first = window.Cmb_Kind.entries.empty();
    const Imported imported =
        imports::import_bytes(window.bytes, window.source, import_choices(words));
    const std::string kind = window.kind_text;
    offer_import_choices(imported, words);
    window.kind_text = words.text("kind_" + std::string(kind_name(imported.kind)));
    if (first || kind != window.kind_text) {
        choose_usual_order(imported.kind, words);
        window.Lst_Chains.clear();
    }
    window.title = imported.title;
    window.Txt_Report = words.report(imported.report);
    show_question(imported, words);
    show_chains(imported, words);
    arrange(words);
}

/// Nothing of the file before stays; what was typed neither, it was meant for that one.
void start_over(const ImportWords& words) {
    const std::uint64_t pictures = state::importar.pictures;
    state::importar = {};
    state::importar.pictures = pictures + 1;
    fill_import_lists(words);
}

/// Beside the source, under a name that nothing has: not the source's own, for one.
std::string free_name(const std::string& source) {
    const std::filesystem::path path = runtime::native_path(source);
    const auto named = [&](const std::string& mark) {
        std::filesystem::path name = path.stem();
        name += mark + ".dat";
        return path.parent_path() / name;
    };
    std::error_code fault;
    std::filesystem::path candidate = named("");
    for (int number = 2; std::filesystem::exists(candidate, fault); ++number)
        candidate = named(std::string("-").append(std::to_string(number)));
    return runtime::path_text(candidate);
}

std::string stem_of(const std::string& source) {
    return runtime::path_text(runtime::native_path(source).stem());
}

/// An outline far from the origin comes to it: the program's coordinates have a limit.
imports::Point displacement(const imports::Box& box, double factor) {
    const double limit = state::loading.LimiteCoord;
    const double most = std::max({box.max_X, box.max_Y, -box.min_X, -box.min_Y}) * factor;
    return most > limit ? imports::Point{-box.min_X, -box.min_Y} : imports::Point{};
}

void put_into_forma() {
    const ImportarWindow& window = state::importar;
    const imports::Point move = displacement(box_of_outline(), window.factor);
    Forma.Pto.redim(static_cast<std::int32_t>(window.outline.size()) - 1);
    std::int32_t i = 0;
    for (const ImportarPoint& point : window.outline)
        Forma.Pto[i++] = {.X = window.factor * (point.X + move.X),
                          .Y = window.factor * (point.Y + move.Y),
                          .Sinc = 0,
                          .Marca = 0};
    Forma.Pto[0].Sinc = kSync;
}

void empty_other(ImportarBox& other) {
    const ImportWords words;
    other.text.clear();
    arrange(words);
}

} // namespace

void importar_Load() {
    load_literals(kWindow);
    const ImportWords words;
    start_over(words);
    state::importar.fault = words.text("note_choose");
    show_notes(words);
}

void Cmd_File_Click() {
    const ImportWords words;
    if (state::document.LastDir.empty())
        state::document.LastDir = state::program.program_folder;
    const std::string path =
        platform().dialogs.open_file({.title = words.text("open_title"),
                                      .filter = words.text("open_filter").append(kAllFiles),
                                      .folder = state::document.LastDir,
                                      .name = {}});
    if (!path.empty())
        importar_take_file(path);
}

void importar_take_file(const std::string& path) {
    const ImportWords words;
    start_over(words);
    ImportarWindow& window = state::importar;
    window.source = window.Txt_File = path;
    runtime::WholeFile file = runtime::read_whole_file(path, kLargestFile);
    if (file.fault != WholeFileFault::none || file.bytes.empty()) {
        window.fault = words.text(key_of(file.fault));
        show_notes(words);
        return;
    }
    window.bytes = std::move(file.bytes);
    read_again(words);
}

void importar_reading_Change() {
    const ImportWords words;
    if (state::importar.bytes.empty() || !import_boxes_hold_numbers())
        show_notes(words);
    else
        read_again(words);
}

void importar_order_Change() {
    arrange(ImportWords());
}

void Txt_Scale_Change() {
    if (state::importar.Txt_Scale.text.empty())
        importar_order_Change();
    else
        empty_other(state::importar.Txt_Chord);
}

void Txt_Chord_Change() {
    if (state::importar.Txt_Chord.text.empty())
        importar_order_Change();
    else
        empty_other(state::importar.Txt_Scale);
}

void importar_chain_Click(std::size_t chain) {
    std::vector<ImportarChain>& list = state::importar.Lst_Chains;
    if (chain >= list.size())
        return;
    const std::size_t place = std::exchange(list[chain].taken, 0);
    if (place == 0) {
        list[chain].taken = std::ranges::max(list, {}, &ImportarChain::taken).taken + 1;
    } else {
        for (ImportarChain& other : list)
            other.taken -= other.taken > place ? 1 : 0;
    }
    importar_order_Change();
}

void importar_cmd_ok_Click() {
    ImportarWindow& window = state::importar;
    if (!window.cmd_ok_enabled)
        return;
    put_into_forma();
    window.taken = true;
    state::document.LastDir = runtime::path_text(runtime::native_path(window.source).parent_path());
    state::Velmora.TxtDescDat = window.title.empty() ? stem_of(window.source) : window.title;
    window.target = free_name(window.source);
    platform().windows.unload(kWindow);
}

void importar_cmd_cancel_Click() {
    platform().windows.unload(kWindow);
}

} // namespace velmora
