#include "forms/import_choices.h"

#include "document/windows/importar.h"
#include "import/number_text.h"
#include "import/order.h"

#include <algorithm>
#include <array>
#include <span>
#include <string>

namespace velmora {

namespace {

using imports::Kind;
using imports::RowOrder;

template <class Value>
struct Entry {
    std::string_view key;
    Value value;
};

constexpr auto kinds = std::to_array<Entry<Kind>>({{"kind_points", Kind::points},
                                                   {"kind_dxf", Kind::dxf},
                                                   {"kind_svg", Kind::svg},
                                                   {"kind_gcode", Kind::gcode}});
constexpr auto row_orders =
    std::to_array<Entry<RowOrder>>({{"by_itself", RowOrder::by_itself},
                                    {"rows_selig", RowOrder::selig},
                                    {"rows_lednicer", RowOrder::lednicer},
                                    {"rows_from_the_nose", RowOrder::from_the_nose},
                                    {"rows_as_it_is", RowOrder::as_it_is}});
constexpr double inch = 25.4;
constexpr auto units = std::to_array<Entry<double>>({{"by_itself", 0},
                                                     {"unit_mm", 1},
                                                     {"unit_cm", 10},
                                                     {"unit_m", 1000},
                                                     {"unit_in", inch},
                                                     {"unit_px96", inch / 96},
                                                     {"unit_px90", inch / 90},
                                                     {"unit_px72", inch / 72}});
constexpr auto axes = std::to_array<Entry<std::string_view>>(
    {{"by_itself", ""}, {"XYUV", "XYUV"}, {"XYZA", "XYZA"}, {"XYUZ", "XYUZ"}});

using Arrange = void (*)(imports::Chain&);
void as_found(imports::Chain&) {}
constexpr auto starts =
    std::to_array<Entry<Arrange>>({{"start_edge", imports::start_at_trailing_edge},
                                   {"start_left", imports::start_leftmost},
                                   {"start_right", imports::start_rightmost},
                                   {"as_found", as_found}});
/// An open line has no side of its own: it is turned round.
void run_backwards(imports::Chain& chain) {
    if (chain.closed)
        std::reverse(chain.points.begin() + (chain.points.empty() ? 0 : 1), chain.points.end());
    else
        imports::reverse(chain);
}
constexpr auto directions =
    std::to_array<Entry<Arrange>>({{"as_found", as_found},
                                   {"direction_left", imports::run_counter_clockwise},
                                   {"direction_right", imports::run_clockwise},
                                   {"direction_back", run_backwards}});

template <class Value>
std::vector<std::string> texts_of(std::span<const Entry<Value>> table, const ImportWords& words) {
    std::vector<std::string> texts;
    for (const Entry<Value>& entry : table)
        texts.push_back(words.text(entry.key));
    return texts;
}

template <std::size_t Count, class Value>
void fill(ChoiceList& list, const std::array<Entry<Value>, Count>& table,
          const ImportWords& words) {
    list.entries = texts_of(std::span<const Entry<Value>>(table), words);
    list.chosen = list.entries.front();
}

/// The value of the entry chosen; the first one's where none is.
template <std::size_t Count, class Value>
Value chosen_in(const ChoiceList& list, const std::array<Entry<Value>, Count>& table,
                const ImportWords& words) {
    for (const Entry<Value>& entry : table)
        if (words.text(entry.key) == list.chosen)
            return entry.value;
    return table.front().value;
}

std::string kind_words(Kind kind, const ImportWords& words) {
    const auto* const found = std::ranges::find(kinds, kind, &Entry<Kind>::value);
    return found == kinds.end() ? std::string() : words.text(found->key);
}

/// The kinds that the file may be, the best first, and behind them the others.
void offer_kinds(const imports::Imported& imported, const ImportWords& words) {
    ChoiceList& list = state::importar.Cmb_Kind;
    list.entries.clear();
    for (const Kind kind : imported.guesses)
        list.entries.push_back(kind_words(kind, words));
    for (const std::string& text : texts_of(std::span<const Entry<Kind>>(kinds), words))
        if (std::ranges::find(list.entries, text) == list.entries.end())
            list.entries.push_back(text);
    list.enabled = true;
    const bool asked = std::ranges::any_of(imported.asks, [](const imports::Ask& ask) {
        return ask.question == imports::Question::kind;
    });
    list.chosen = asked ? std::string() : kind_words(imported.kind, words);
}

void offer_elements(const imports::Imported& imported, const ImportWords& words) {
    ChoiceList& list = state::importar.Cmb_Element;
    const auto ask =
        std::ranges::find(imported.asks, imports::Question::element, &imports::Ask::question);
    list.enabled = ask != imported.asks.end();
    list.entries = {words.text("by_itself")};
    for (std::size_t i = 0; list.enabled && i < ask->options.size(); ++i)
        list.entries.push_back(std::to_string(i + 1) + ": " +
                               words.text_with("element_points", ask->options[i]));
    if (std::ranges::find(list.entries, list.chosen) == list.entries.end())
        list.chosen = list.entries.front();
}

std::optional<std::size_t> chosen_element() {
    const ChoiceList& list = state::importar.Cmb_Element;
    const auto found = std::ranges::find(list.entries, list.chosen);
    if (found == list.entries.end() || found == list.entries.begin())
        return {};
    return static_cast<std::size_t>(found - list.entries.begin()) - 1;
}

std::optional<Kind> chosen_kind(const ImportWords& words) {
    if (state::importar.Cmb_Kind.chosen.empty())
        return {};
    return chosen_in(state::importar.Cmb_Kind, kinds, words);
}

bool holds_number(const ImportarBox& box, bool zero_too) {
    if (box.text.find_first_not_of(' ') == std::string::npos)
        return true;
    const auto number = number_in(box.text);
    return number && (*number > 0 || (zero_too && *number == 0));
}

} // namespace

void fill_import_lists(const ImportWords& words) {
    ImportarWindow& window = state::importar;
    fill(window.Cmb_Rows, row_orders, words);
    fill(window.Cmb_Unit, units, words);
    fill(window.Cmb_Axes, axes, words);
    fill(window.Cmb_Start, starts, words);
    fill(window.Cmb_Direction, directions, words);
    window.Cmb_Kind = {};
    window.Cmb_Element = {
        .entries = {words.text("by_itself")}, .chosen = words.text("by_itself"), .enabled = false};
}

void offer_import_choices(const imports::Imported& imported, const ImportWords& words) {
    ImportarWindow& window = state::importar;
    const Kind kind = imported.kind;
    const bool drawing = kind == Kind::dxf || kind == Kind::svg;
    offer_kinds(imported, words);
    offer_elements(imported, words);
    window.Cmb_Rows.enabled = kind == Kind::points;
    window.Cmb_Unit.enabled = drawing || kind == Kind::gcode;
    window.Cmb_Axes.enabled = kind == Kind::gcode;
    window.Txt_Tolerance.enabled = drawing || kind == Kind::gcode;
    window.Txt_Gap.enabled = drawing;
    window.Chk_Hidden_enabled = kind == Kind::dxf;
    window.Chk_Approach_enabled = kind == Kind::gcode;
    const bool found = !imported.chains.empty();
    window.Cmb_Start.enabled = window.Cmb_Direction.enabled = found;
    window.Txt_Scale.enabled = window.Txt_Chord.enabled = found;
}

// The two sides of a four-axis program run together: they begin where the program begins, and where
// one side waits for the other its point stands as often.
void choose_usual_order(Kind kind, const ImportWords& words) {
    const bool program = kind == Kind::gcode;
    state::importar.Cmb_Start.chosen = words.text(program ? "as_found" : "start_edge");
    state::importar.Chk_Doubles = !program;
}

std::optional<double> number_in(const std::string& box) {
    std::string text = box;
    std::ranges::replace(text, ',', '.');
    const auto first = text.find_first_not_of(' ');
    if (first == std::string::npos)
        return {};
    return imports::number_of(
        std::string_view(text).substr(first, text.find_last_not_of(' ') - first + 1));
}

bool import_boxes_hold_numbers() {
    const ImportarWindow& window = state::importar;
    return holds_number(window.Txt_Tolerance, false) && holds_number(window.Txt_Gap, true) &&
           holds_number(window.Txt_Scale, false) && holds_number(window.Txt_Chord, false);
}

imports::Choices import_choices(const ImportWords& words) {
    const ImportarWindow& window = state::importar;
    imports::Choices choices;
    choices.kind = chosen_kind(words);
    choices.tolerance = number_in(window.Txt_Tolerance.text);
    choices.gap = number_in(window.Txt_Gap.text);
    if (const double unit = chosen_in(window.Cmb_Unit, units, words); unit > 0)
        choices.unit_mm = unit;
    choices.element = chosen_element();
    choices.order = chosen_in(window.Cmb_Rows, row_orders, words);
    choices.remove_doubles = window.Chk_Doubles;
    choices.hidden_layers = window.Chk_Hidden;
    choices.trim_approach = window.Chk_Approach;
    choices.axes = chosen_in(window.Cmb_Axes, axes, words);
    return choices;
}

void put_in_chosen_order(imports::Chain& chain, const ImportWords& words) {
    if (state::importar.Chk_Doubles)
        (void)imports::remove_doubles(chain);
    chosen_in(state::importar.Cmb_Start, starts, words)(chain);
    chosen_in(state::importar.Cmb_Direction, directions, words)(chain);
}

} // namespace velmora
