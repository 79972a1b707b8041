// The scripts of the scenario driver.
#include "fuzz/target.h"
#include "fuzz/targets.h"
#include "runtime/error.h"
#include "script/fault.h"
#include "script/hand_made_dat.h"
#include "script/numbers.h"
#include "script/places.h"
#include "script/script.h"
#include "script/words.h"
#include "scripted/cad_lines.h"

#include <span>

namespace velmora::fuzz {

namespace {

/// A fault of a script is an answer too.
template <class Body>
void carry_out(Body&& body) {
    try {
        body();
    } catch (const driver::ScriptFault&) {
    }
}

void read_as_numbers(const std::string& word) {
    carry_out([&] {
        const double number = driver::real_number(word);
        promise(driver::real_number(driver::number_text(number)) == number || number != number,
                "a number's text is read back");
    });
    carry_out([&] { (void)driver::whole_number(word); });
    carry_out([&] { (void)driver::count_number(word); });
    carry_out([&] { (void)driver::hex_number(word); });
}

void read_line(driver::CadState& cad, const std::string& line) {
    static const driver::Places places{"/x/work", "/x/program"};
    const auto words = driver::split_words(line);
    for (const std::string& word : words) {
        const auto again = driver::split_words(driver::word_text(word));
        promise(again.size() == 1 && again.front() == word, "a word's text is the word again");
        (void)driver::quoted_bytes(word);
        (void)places.named(places.resolve(word));
        (void)places.expanded(word);
        read_as_numbers(word);
    }
    if (words.empty())
        return;
    const std::span<const std::string> behind = std::span(words).subspan(1);
    if (words.front() == "cad")
        driver::cad_line(cad, behind);
    else if (words.front() == "dat")
        (void)driver::hand_made_dat("x", behind);
}

} // namespace

void scenario(std::string_view bytes) {
    driver::CadState cad;
    for (const driver::ScriptLine& line : driver::parse_script(bytes))
        carry_out([&] { read_line(cad, line.text); });
}

} // namespace velmora::fuzz
