#include "forms/cut_words.h"

#include "document/number_text.h"
#include "runtime/numbers.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <initializer_list>
#include <utility>

namespace velmora {

namespace {

using cutting::Entry;
using cutting::Finding;
using cutting::Plane;

constexpr const char* kTable = "ver_corte_texts";
constexpr int kDecimals = 2;
constexpr int kFineDecimals = 4;
constexpr double kFine = 1;     // below it a number is told more closely
constexpr double kWholly = 1e6; // of a factor: one side as good as stands still
constexpr std::size_t kBeyondShown = 8;

using Values = std::initializer_list<std::pair<std::string_view, std::string>>;

std::string filled(std::string text, Values values) {
    for (const auto& [mark, value] : values)
        put_in(text, mark, value);
    return text;
}

/// As a person counts: from 1.
std::string ordinal(std::size_t place) {
    return std::to_string(place + 1);
}

std::string_view key_of(Finding kind) {
    constexpr auto keys = std::to_array<std::string_view>(
        {"too_few_points", "all_points_equal", "beyond_numbers", "counts_differ",
         "sync_totals_differ", "no_sync_points", "sync_apart", "opposite_turn", "runs_differ",
         "stands_still", "steps_differ", "lines_cross", "repeat_on_one_side", "points_close",
         "crosses_itself"});
    static_assert(keys.size() == cutting::findings);
    return keys[static_cast<std::size_t>(kind)];
}

std::string_view key_of(CutLack lack) {
    constexpr auto keys =
        std::to_array<std::string_view>({"", "lack_sides", "lack_pairs", "lack_counts",
                                         "lack_points", "lack_distance", "lack_numbers"});
    return keys[static_cast<std::size_t>(lack)];
}

std::string_view key_of(Plane plane) {
    constexpr auto keys = std::to_array<std::string_view>(
        {"plane_tower_A", "plane_face_A", "plane_face_B", "plane_tower_B"});
    return keys[cutting::index(plane)];
}

std::string_view key_of(cutting::SideFault fault) {
    constexpr auto keys = std::to_array<std::string_view>(
        {"file_missing", "file_no_outline", "file_bad_number", "file_too_large", "file_one_side"});
    return keys[static_cast<std::size_t>(fault)];
}

std::string_view key_of(cutting::MachineFault fault) {
    constexpr auto keys = std::to_array<std::string_view>(
        {"machine_no_pair", "machine_unknown_key", "machine_bad_axes", "machine_bad_unit",
         "machine_bad_number", "machine_bad_feed", "machine_bad_line_end", "machine_bad_travel",
         "machine_no_axes", "machine_no_name"});
    return keys[static_cast<std::size_t>(fault)];
}

std::string_view key_of(cutting::GcodeFault fault) {
    constexpr auto keys = std::to_array<std::string_view>(
        {"", "gcode_no_wire", "gcode_bad_machine", "gcode_bad_speed", "gcode_one_place"});
    return keys[static_cast<std::size_t>(fault)];
}

std::string two_digits(long number) {
    return std::string(number < 10 ? 1 : 0, '0').append(std::to_string(number));
}

std::string from_to(double from, double to) {
    return shown_number(from) + " … " + shown_number(to);
}

} // namespace

std::string shown_number(double value) {
    if (!std::isfinite(value))
        return "∞";
    const bool fine = std::abs(value) < kFine;
    return CStr(runtime::Round(value, fine ? kFineDecimals : kDecimals));
}

std::string shown_minutes(double minutes) {
    constexpr double most = 60'000; // beyond, nobody waits
    if (!(minutes < most))
        return "> 1000:00:00";
    const long seconds = std::lround(minutes * 60);
    const long hours = seconds / 3600;
    const long rest = seconds % 3600;
    if (hours == 0)
        return std::to_string(rest / 60) + ":" + two_digits(rest % 60);
    return std::to_string(hours) + ":" + two_digits(rest / 60) + ":" + two_digits(rest % 60);
}

CutWords::CutWords() : TextTable(kTable) {}

std::string CutWords::named(std::string_view key, std::string_view name) const {
    return filled(text(key), {{"{t}", std::string(name)}});
}

std::string CutWords::lack(const CutAtHand& cut) const {
    if (cut.lack == CutLack::nothing)
        return cut.drawable() ? "" : text("lack_numbers");
    return filled(text(key_of(cut.lack)), {{"{n}", std::to_string(cut.given.A.points.size())},
                                           {"{o}", std::to_string(cut.given.B.points.size())}});
}

std::string CutWords::side(cutting::Which side) const {
    return side == cutting::Which::both ? "A, B" : side == cutting::Which::A ? "A" : "B";
}

std::string CutWords::entry(const Entry& entry) const {
    std::string key(key_of(entry.kind));
    if (entry.kind == Finding::steps_differ && !(entry.value < kWholly))
        key += "_wholly";
    const bool counts = entry.kind == Finding::too_few_points ||
                        entry.kind == Finding::counts_differ ||
                        entry.kind == Finding::sync_totals_differ;
    const auto number = [&](double value) {
        return counts ? std::to_string(static_cast<long>(value)) : shown_number(value);
    };
    return filled(text(key), {{"{s}", side(entry.side)},
                              {"{i}", ordinal(entry.first)},
                              {"{j}", ordinal(entry.last)},
                              {"{v}", number(entry.value)},
                              {"{o}", entry.kind == Finding::sync_apart
                                          ? ordinal(static_cast<std::size_t>(entry.value))
                                          : number(entry.other)},
                              {"{a}", shown_number(entry.way_A)},
                              {"{b}", shown_number(entry.way_B)}});
}

std::string CutWords::more(std::size_t count) const {
    return filled(text("more_like_it"), {{"{n}", std::to_string(count)}});
}

std::string CutWords::total(std::size_t count) const {
    if (count == 0)
        return text("look_none");
    return filled(text(count == 1 ? "look_one" : "look_total"), {{"{n}", std::to_string(count)}});
}

std::string CutWords::place(const CutAtHand& cut, double along, double speed) const {
    if (!cut.has_wire())
        return {};
    const cutting::WirePlace at = place_at(cut.wire, along);
    const double share = cut.wire.length() > 0 ? along / cut.wire.length() : 0;
    return filled(text("wire_place"),
                  {{"{i}", ordinal(at.step)},
                   {"{n}", std::to_string(cut.wire.size() - 1)},
                   {"{l}", shown_number(along)},
                   {"{o}", shown_number(cut.wire.length())},
                   {"{t}", shown_minutes(minutes_at(cut.wire, speed) * share)}});
}

std::vector<std::vector<std::string>> CutWords::numbers(const CutAtHand& cut) const {
    std::vector<std::vector<std::string>> rows;
    rows.push_back({text("head_plane"), text("head_way"), text("head_X"), text("head_Y")});
    if (!cut.has_wire())
        return rows;
    for (const Plane plane : {Plane::tower_A, Plane::face_A, Plane::face_B, Plane::tower_B}) {
        const bool face = plane == Plane::face_A || plane == Plane::face_B;
        if (face && !cut.in_space)
            continue;
        const cutting::Box& box = cut.numbers.extents[cutting::index(plane)];
        rows.push_back({text(key_of(plane)),
                        shown_number(cut.numbers.lengths[cutting::index(plane)]),
                        from_to(box.min_X, box.max_X), from_to(box.min_Y, box.max_Y)});
    }
    return rows;
}

std::string CutWords::fit(const CutAtHand& cut, double travel_X, double travel_Y) const {
    if (!cut.has_wire())
        return {};
    const cutting::Box& towers = cut.numbers.towers;
    const cutting::Fit fit = fit_of(cut.numbers, travel_X, travel_Y);
    std::string said = filled(text("towers_need"), {{"{x}", shown_number(towers.width())},
                                                    {"{y}", shown_number(towers.height())}});
    if (travel_X <= 0 && travel_Y <= 0)
        return said;
    if (fit.fits())
        return said + " " + text("travel_fits");
    if (fit.over_X > 0)
        said.append(" ").append(filled(text("travel_over_X"), {{"{v}", shown_number(fit.over_X)}}));
    if (fit.over_Y > 0)
        said.append(" ").append(filled(text("travel_over_Y"), {{"{v}", shown_number(fit.over_Y)}}));
    return said;
}

std::string CutWords::time(const CutAtHand& cut, double speed) const {
    if (!cut.has_wire() || !(speed > 0))
        return {};
    return filled(text("cut_time"), {{"{t}", shown_minutes(minutes_at(cut.wire, speed))}});
}

std::string CutWords::side_fault(const std::string& file, cutting::SideFault fault,
                                 std::size_t line) const {
    const std::string said =
        filled(text(key_of(fault)), {{"{t}", file}, {"{i}", std::to_string(line)}});
    return said;
}

std::string CutWords::machine_problem(const cutting::MachineProblem& problem) const {
    const std::string said = filled(text(key_of(problem.fault)), {{"{t}", problem.text}});
    if (problem.line == 0)
        return problem.file + ": " + said;
    return filled(text("machine_line"),
                  {{"{f}", problem.file}, {"{i}", std::to_string(problem.line)}, {"{t}", said}});
}

std::string CutWords::gcode_fault(cutting::GcodeFault fault) const {
    return text(key_of(fault));
}

std::string CutWords::beyond(const cutting::Gcode& code) const {
    std::string said =
        filled(text("beyond_travel"), {{"{n}", std::to_string(code.beyond_count)}}) + "\n";
    for (std::size_t i = 0; i < std::min(kBeyondShown, code.beyond.size()); ++i) {
        const cutting::BeyondTravel& word = code.beyond[i];
        said.append("\n").append(filled(text("beyond_line"), {{"{i}", std::to_string(word.line)},
                                                              {"{s}", std::string(1, word.axis)},
                                                              {"{v}", shown_number(word.value)},
                                                              {"{l}", shown_number(word.limit)},
                                                              {"{j}", ordinal(word.place)}}));
    }
    if (code.beyond_count > kBeyondShown)
        said += "\n…";
    return said + "\n\n" + text("write_anyway");
}

} // namespace velmora
