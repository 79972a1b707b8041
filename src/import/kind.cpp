#include "import/kind.h"

#include "import/dxf_tags.h"
#include "import/gcode_words.h"
#include "import/number_text.h"
#include "import/text.h"

#include <algorithm>
#include <array>
#include <utility>

namespace velmora::imports {

namespace {

constexpr std::size_t lines_looked_at = 400;

constexpr std::array<std::pair<std::string_view, std::string_view>, 6> known_starts = {
    {{"AC10", "DWG drawing"},
     {"%PDF", "PDF"},
     {"PK\x03\x04", "ZIP archive"},
     {"\x89PNG", "PNG picture"},
     {"\xFF\xD8\xFF", "JPEG picture"},
     {"%!PS", "PostScript"}}};

constexpr std::array<std::pair<std::string_view, Kind>, 12> endings = {{{"dxf", Kind::dxf},
                                                                        {"svg", Kind::svg},
                                                                        {"dat", Kind::points},
                                                                        {"cor", Kind::points},
                                                                        {"csv", Kind::points},
                                                                        {"txt", Kind::points},
                                                                        {"nc", Kind::gcode},
                                                                        {"ngc", Kind::gcode},
                                                                        {"gcode", Kind::gcode},
                                                                        {"tap", Kind::gcode},
                                                                        {"cnc", Kind::gcode},
                                                                        {"gc", Kind::gcode}}};

Kind kind_by_ending(std::string_view name) {
    const std::size_t dot = name.rfind('.');
    if (dot == std::string_view::npos)
        return Kind::unknown;
    for (const auto& [ending, kind] : endings) {
        if (same_word(name.substr(dot + 1), ending))
            return kind;
    }
    return Kind::unknown;
}

bool is_row(std::string_view line) {
    std::size_t numbers = 0;
    while (!line.empty()) {
        while (!line.empty() && (is_blank(line.front()) || line.front() == ',' ||
                                 line.front() == ';' || line.front() == '('))
            line.remove_prefix(1);
        if (!take_number(line))
            break;
        ++numbers;
    }
    return numbers >= 2;
}

bool is_gcode(std::string_view line, std::vector<GcodeWord>& words) {
    if (gcode_words(line, words) != GcodeLine::read)
        return false;
    return std::ranges::any_of(words, [](const GcodeWord& word) {
        return std::string_view("GMXYUV").find(word.letter) != std::string_view::npos;
    });
}

/// How much of a text's start speaks for each kind, from 0 to 1.
struct Shares {
    double dxf = 0;
    double gcode = 0;
    double points = 0;
};

Shares shares_of(std::string_view text) {
    std::vector<GcodeWord> words;
    Lines lines(text);
    std::string_view line;
    std::string_view before;
    std::size_t count = 0;
    std::size_t gcode = 0;
    std::size_t rows = 0;
    Shares shares;
    while (count < lines_looked_at && lines.next(line)) {
        line = trimmed(line);
        const bool marks_dxf = line == "SECTION" || line == "LINE" || line == "LWPOLYLINE" ||
                               line == "POLYLINE" || line == "SPLINE" || line == "EOF";
        if (before == "0" && marks_dxf)
            shares.dxf = 1;
        before = line;
        if (line.empty())
            continue;
        ++count;
        rows += is_row(line) ? 1 : 0;
        gcode += is_gcode(line, words) ? 1 : 0;
    }
    if (count > 0) {
        shares.gcode = static_cast<double>(gcode) / static_cast<double>(count);
        shares.points = static_cast<double>(rows) / static_cast<double>(count);
    }
    return shares;
}

bool is_svg(std::string_view text) {
    return text.starts_with('<') && text.find("<svg") != std::string_view::npos;
}

KindGuess by_shares(const Shares& shares, Kind by_name) {
    std::vector<std::pair<double, Kind>> ranked = {
        {shares.dxf, Kind::dxf}, {shares.gcode, Kind::gcode}, {shares.points, Kind::points}};
    for (auto& [share, kind] : ranked)
        share += kind == by_name ? 0.05 : 0;
    std::ranges::stable_sort(ranked, std::greater(), &std::pair<double, Kind>::first);
    KindGuess guess{.kinds = {}, .certain = ranked[0].first >= 0.2, .not_read = {}};
    for (const auto& [share, kind] : ranked)
        guess.kinds.push_back(kind);
    return guess;
}

} // namespace

std::string_view kind_name(Kind kind) {
    switch (kind) {
    case Kind::points:
        return "points";
    case Kind::dxf:
        return "dxf";
    case Kind::svg:
        return "svg";
    case Kind::gcode:
        return "gcode";
    case Kind::unknown:
        break;
    }
    return "unknown";
}

KindGuess guess_kind(std::string_view bytes, std::string_view text, std::string_view name) {
    if (is_binary_dxf(bytes))
        return {.kinds = {Kind::dxf}, .certain = true, .not_read = {}};
    for (const auto& [start, what] : known_starts) {
        if (bytes.starts_with(start))
            return {.kinds = {}, .certain = true, .not_read = what};
    }
    const std::string_view content =
        trimmed(text.substr(0, std::min<std::size_t>(text.size(), 65'536)));
    if (is_svg(content))
        return {.kinds = {Kind::svg}, .certain = true, .not_read = {}};
    KindGuess guess = by_shares(shares_of(text), kind_by_ending(name));
    if (content.starts_with('<') || kind_by_ending(name) == Kind::svg)
        guess.kinds.insert(guess.kinds.begin() + (guess.certain ? 1 : 0), Kind::svg);
    else
        guess.kinds.push_back(Kind::svg);
    return guess;
}

} // namespace velmora::imports
