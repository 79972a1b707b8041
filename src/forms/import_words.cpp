#include "forms/import_words.h"

#include "document/number_text.h"
#include "document/state/program.h"
#include "runtime/numbers.h"

#include <algorithm>
#include <map>

namespace velmora {

namespace {

constexpr const char* table_name = "importar_texts";
constexpr std::size_t shown_of_each = 5;
constexpr int length_decimals = 2;

/// What a reader names in English has a text of its own: "DWG drawing" that of word_DWG_drawing.
std::string key_of_word(const std::string& word) {
    std::string key = "word_" + word;
    std::ranges::replace(key, ' ', '_');
    return key;
}

bool names_a_word(imports::Fact fact) {
    return fact == imports::Fact::unit || fact == imports::Fact::not_read;
}

double length_of(const imports::Chain& chain) {
    double sum = 0;
    for (std::size_t i = 1; i < chain.points.size(); ++i)
        sum += distance(chain.points[i - 1], chain.points[i]);
    return chain.closed ? sum + distance(chain.points.back(), chain.points.front()) : sum;
}

} // namespace

ImportWords::ImportWords() : TextTable(table_name) {}

std::string ImportWords::text_with(std::string_view key, std::string_view value) const {
    std::string result = text(key);
    put_in(result, "{n}", value);
    return result;
}

std::string ImportWords::remark(const imports::Remark& remark) const {
    imports::Remark said = remark;
    if (names_a_word(said.fact))
        said.text = text(key_of_word(said.text), said.text);
    const std::string words =
        filled(text(key(said.fact), imports::words(said.fact)), said, state::program.SepDecimal);
    if (said.line == 0)
        return words;
    return text_with("at_line", std::to_string(said.line)) + ' ' + words;
}

std::string ImportWords::report(const imports::Report& report) const {
    std::map<imports::Fact, std::size_t> shown;
    std::string lines;
    for (const imports::Remark& said : report.remarks()) {
        const std::size_t number = ++shown[said.fact];
        if (number > shown_of_each + 1)
            continue;
        if (number <= shown_of_each)
            lines += remark(said);
        else
            lines +=
                text_with("more_like_it", std::to_string(report.count(said.fact) - shown_of_each));
        lines += '\n';
    }
    return lines;
}

std::string ImportWords::chain(const imports::Chain& chain, std::size_t number, bool in_mm) const {
    std::string row = text(chain.closed ? "chain_closed" : "chain_open");
    put_in(row, "{i}", std::to_string(number));
    put_in(row, "{n}", std::to_string(chain.points.size()));
    put_in(row, "{l}",
           CStr(runtime::Round(length_of(chain), length_decimals)) + (in_mm ? " mm" : ""));
    if (!chain.name.empty())
        row += " - " + chain.name;
    return row;
}

} // namespace velmora
