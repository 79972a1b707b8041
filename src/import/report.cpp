#include "import/report.h"

#include "runtime/numbers.h"

#include <algorithm>
#include <cmath>

namespace velmora::imports {

namespace {

constexpr std::size_t longest_text = 80;

struct Wording {
    Fact fact;
    std::string_view key;
    std::string_view words; ///< {t} the text, {n} the number, {o} the other number
};

constexpr std::array<Wording, static_cast<std::size_t>(Fact::last_)> wordings = {{
    {Fact::utf16, "utf16", "UTF-16 text"},
    {Fact::latin1, "latin1", "no UTF-8, read as Latin-1"},
    {Fact::end_mark, "end_mark", "what stands behind the end mark (byte 26) is left out"},
    {Fact::title, "title", "title: {t}"},
    {Fact::line_passed_over, "line_passed_over", "passed over: {t}"},
    {Fact::numbers_passed_over, "numbers_passed_over", "passed over, though it holds numbers: {t}"},
    {Fact::grid_numbers, "grid_numbers", "grid numbers, no point: {t}"},
    {Fact::count_pair, "count_pair", "numbers of points, no point: {n} and {o}"},
    {Fact::outlying_row, "outlying_row", "far from all others, no point: {t}"},
    {Fact::short_run, "short_run", "a few numbers beside the points, left out: {t}"},
    {Fact::decimal_comma, "decimal_comma", "the comma is the decimal separator"},
    {Fact::third_column, "third_column", "the third column is left out"},
    {Fact::selig, "selig", "{n} points, Selig order (trailing edge, nose, trailing edge)"},
    {Fact::lednicer, "lednicer", "{n} points, Lednicer order (two halves from the nose), joined"},
    {Fact::three_columns, "three_columns", "{n} points from columns x, upper, lower, joined"},
    {Fact::from_the_nose, "from_the_nose", "{n} points, a loop from the nose, started at the edge"},
    {Fact::open_row, "open_row", "{n} points, an open line"},
    {Fact::order_unknown, "order_unknown", "{n} points, in the order of the file"},
    {Fact::reversed, "reversed", "ran clockwise, turned round"},
    {Fact::percent, "percent", "in percent of the chord, divided by 100"},
    {Fact::chord, "chord", "chord {n}"},
    {Fact::element_left_out, "element_left_out", "another element of {n} points is left out"},
    {Fact::edge_gap, "edge_gap",
     "the trailing edge is open by {n} % of the chord, closed straight"},
    {Fact::suspicious_row, "suspicious_row", "the direction turns here, a mistyped number? {t}"},
    {Fact::doubles, "doubles", "{n} doubles removed"},
    {Fact::zero_lengths, "zero_lengths", "{n} pieces without length removed"},
    {Fact::junction, "junction",
     "more than two pieces meet at {n}, {o}: the smallest turn is taken"},
    {Fact::largest_gap, "largest_gap", "{o} gaps joined, the largest {n}"},
    {Fact::too_many_points, "too_many_points", "more than {n} points: the rest is left out"},
    {Fact::points_alone, "points_alone", "single points alone: joined in the order of the file"},
    {Fact::points_left_out, "points_left_out", "{n} single points are left out"},
    {Fact::dxf_version, "dxf_version", "version {t}"},
    {Fact::unit, "unit", "unit {t}: {n} mm"},
    {Fact::read_entities, "read_entities", "{n} {t}"},
    {Fact::left_out_entities, "left_out_entities", "{n} {t} left out"},
    {Fact::hidden_layer, "hidden_layer", "layer {t} is off or frozen: {n} pieces left out"},
    {Fact::paper_space, "paper_space", "{n} entities of the paper left out"},
    {Fact::hidden_entities, "hidden_entities", "{n} invisible entities left out"},
    {Fact::stray_line, "stray_line", "no group code: {t}"},
    {Fact::ends_early, "ends_early", "the file ends before its end mark"},
    {Fact::behind_the_end, "behind_the_end", "what follows the end is left out"},
    {Fact::missing_block, "missing_block", "block {t} is not there"},
    {Fact::block_in_itself, "block_in_itself", "block {t} holds itself, left out there"},
    {Fact::too_deep, "too_deep", "nested deeper than {n}: left out there"},
    {Fact::too_many_inserts, "too_many_inserts", "more than {n} insertions: the rest is left out"},
    {Fact::bad_entity, "bad_entity", "{t} without the numbers that it needs, left out"},
    {Fact::broken_xml, "broken_xml", "no well-formed XML from here on: {t}"},
    {Fact::broken_path, "broken_path", "path data end at: {t}"},
    {Fact::no_size, "no_size", "no size in a unit of length: 96 to the inch"},
    {Fact::word_refused, "word_refused", "not read: {t}"},
    {Fact::approach_left_out, "approach_left_out", "{n} rapid moves at the ends left out"},
    {Fact::no_unit, "no_unit", "no unit is named: millimetres"},
    {Fact::axes, "axes", "axes {t}"},
    {Fact::layer_planes, "layer_planes", "plane of {t}: {n}"},
    {Fact::not_read, "not_read", "{t}: not read"},
}};

constexpr bool in_order() {
    for (std::size_t i = 0; i < wordings.size(); ++i) {
        if (static_cast<std::size_t>(wordings[i].fact) != i)
            return false;
    }
    return true;
}
static_assert(in_order(), "each fact has its words, at its own place");

const Wording& wording(Fact fact) {
    return wordings[static_cast<std::size_t>(fact)];
}

/// Cut after a whole UTF-8 character.
std::string_view shortened(std::string_view text) {
    if (text.size() <= longest_text)
        return text;
    std::size_t end = longest_text;
    while (end > 0 && (static_cast<unsigned char>(text[end]) & 0xC0) == 0x80)
        --end;
    return text.substr(0, end);
}

/// To six significant digits: it is read by a person.
std::string number_words(double value, char separator) {
    const double size = std::abs(value);
    const int before_point = size >= 1 ? static_cast<int>(std::floor(std::log10(size))) + 1 : 0;
    return runtime::CStr(runtime::Round(value, std::max(0, 6 - before_point)), separator);
}

void put(std::string& words, std::string_view mark, std::string_view value) {
    if (const auto at = words.find(mark); at != std::string::npos)
        words.replace(at, mark.size(), value);
}

} // namespace

void Report::add(Fact fact, std::size_t line, std::string_view text, double number, double other) {
    if (++counts_[static_cast<std::size_t>(fact)] > kept_of_each)
        return;
    remarks_.push_back({fact, line, std::string(shortened(text)), number, other});
}

void Report::append(const Report& other) {
    remarks_.insert(remarks_.end(), other.remarks_.begin(), other.remarks_.end());
    for (std::size_t i = 0; i < counts_.size(); ++i)
        counts_[i] += other.counts_[i];
}

std::size_t Report::count(Fact fact) const {
    return counts_[static_cast<std::size_t>(fact)];
}

std::string_view key(Fact fact) {
    return wording(fact).key;
}

std::string_view words(Fact fact) {
    return wording(fact).words;
}

std::string filled(std::string_view words, const Remark& remark, char separator) {
    std::string text(words);
    put(text, "{n}", number_words(remark.number, separator));
    put(text, "{o}", number_words(remark.other, separator));
    put(text, "{t}", remark.text);
    return text;
}

std::string sentence(const Remark& remark) {
    const std::string text = filled(words(remark.fact), remark, '.');
    if (remark.line == 0)
        return text;
    return "line " + std::to_string(remark.line) + ": " + text;
}

} // namespace velmora::imports
