#include "server/stand_in.h"

#include "adapters/com/wide_text.h"
#include "questions/questions.h"
#include "runtime/error.h"
#include "script/fault.h"
#include "script/numbers.h"
#include "script/words.h"
#include "scripted/cad_lines.h"
#include "server/drawing_objects.h"

namespace velmora::test {

namespace {

using com::Variant;
using Words = std::vector<std::string>;

driver::CadDrawing& active_drawing(driver::CadState& state) {
    if (!state.application->active)
        driver::fault("no drawing is open in the CAD");
    return *state.application->active;
}

void erase_last(driver::CadState& state) {
    active_drawing(state).model_space.pop_back();
}

/// What happens in the middle of a call. False for any other line.
bool line_of_a_moment(Manners& manners, driver::CadState& state, const Words& words) {
    const std::string& action = words.at(0);
    if (action == "die-at")
        manners.laid_out = [] {
            TerminateProcess(GetCurrentProcess(), 1);
        };
    else if (action == "erase-at")
        manners.laid_out = [&state] {
            erase_last(state);
        };
    else if (action == "close-at")
        manners.laid_out = [&state] {
            driver::cad_line(state, Words{"no-document"});
        };
    else
        return false;
    manners.awaited_member = com::wide_text(words.at(1));
    return true;
}

/// Lines that a scenario has no use for. False for any other line.
bool own_line(Manners& manners, driver::CadState& state, const Words& words) {
    const std::string& action = words.at(0);
    if (action == "busy")
        manners.busy = driver::count_number(words.at(1));
    else if (action == "hide")
        manners.hidden_member = com::wide_text(words.at(1));
    else if (action == "failures")
        manners.plain_results = words.at(1) == "plain";
    else if (action == "arrays")
        manners.variant_arrays = words.at(1) == "of-variants";
    else if (action == "shorten")
        active_drawing(state).model_space.back()->numbers.pop_back();
    else if (action == "erase")
        erase_last(state);
    else
        return line_of_a_moment(manners, state, words);
    return true;
}

} // namespace

StandIn::StandIn() {
    // A picked point that no test laid out is a fault of the test, not a wait for a person.
    state_.no_pick = [] {
        raise(E_UNEXPECTED, "no pick is laid out");
    };
}

void StandIn::say(const std::string& line) {
    const Words words = driver::split_words(line);
    try {
        if (!own_line(manners_, state_, words))
            driver::cad_line(state_, words);
    } catch (const std::exception& failure) {
        raise(E_INVALIDARG, failure.what());
    }
}

std::string StandIn::shown() const {
    std::string text;
    driver::Transcript transcript([&](std::string_view line) { (text += line) += '\n'; });
    driver::show_cad(transcript, driver::Places("/work", "/program"), state_);
    return text;
}

void StandIn::activated() {
    state_.log.emplace_back("AppActivate Autocad");
}

com::ComPtr<IDispatch> StandIn::application() {
    std::vector<Member> members =
        application_members(manners_, [this] { return cad_.GetObject(); });
    members.push_back({L"Say", [this](const Arguments& line) {
                           say(line.at(0).as_text());
                           return Variant();
                       }});
    members.push_back({L"Shown", [this](const Arguments&) {
                           return Variant::text(shown());
                       }});
    members.push_back({L"Prompt", [this](const Arguments&) {
                           return Variant::text(manners_.prompt);
                       }});
    members.push_back({L"Quit", [](const Arguments&) {
                           PostQuitMessage(0);
                           return Variant();
                       }});
    return serve(manners_, std::move(members));
}

} // namespace velmora::test
