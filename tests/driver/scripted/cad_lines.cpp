#include "scripted/cad_lines.h"

#include "script/fault.h"
#include "script/numbers.h"
#include "script/words.h"

#include <algorithm>
#include <utility>

namespace velmora::driver {

namespace {

using Words = std::span<const std::string>;

void want(Words words, std::size_t count, const std::string& what) {
    if (words.size() != count)
        fault("cad " + what);
}

std::vector<double> numbers_of(Words words) {
    std::vector<double> numbers;
    std::ranges::transform(words, std::back_inserter(numbers), real_number);
    return numbers;
}

CadEntity& add_entity(CadState& state, CadShape shape, std::vector<double> numbers) {
    if (!state.application->active)
        fault("no drawing is open in the CAD");
    auto entity = std::make_shared<CadEntity>();
    entity->shape = shape;
    entity->ObjectName = object_name(shape);
    entity->numbers = std::move(numbers);
    return *state.application->active->model_space.emplace_back(std::move(entity));
}

void add_path(CadState& state, CadShape shape, Words words, const std::string& what) {
    if (words.size() < 2 || words.size() % 2 != 0)
        fault("cad " + what);
    add_entity(state, shape, numbers_of(words));
}

void running(CadState& state, Words words) {
    want(words, 2, "running NAME VERSION");
    state.running = true;
    state.application->name = words[0];
    state.application->version = words[1];
}

void none(CadState& state, Words words) {
    want(words, 0, "none");
    state.stop();
}

void document(CadState& state, Words words) {
    want(words, 1, "document NAME");
    state.application->open(words[0]);
}

void no_document(CadState& state, Words words) {
    want(words, 0, "no-document");
    state.application->drawings.clear();
    state.application->active.reset();
}

void line(CadState& state, Words words) {
    want(words, 4, "line X1 Y1 X2 Y2");
    add_entity(state, CadShape::line, numbers_of(words));
}

void point(CadState& state, Words words) {
    want(words, 2, "point X Y");
    add_entity(state, CadShape::point, numbers_of(words));
}

void circle(CadState& state, Words words) {
    want(words, 3, "circle CX CY R");
    add_entity(state, CadShape::circle, numbers_of(words));
}

void arc(CadState& state, Words words) {
    want(words, 5, "arc CX CY R START END");
    add_entity(state, CadShape::arc, numbers_of(words));
}

void polyline(CadState& state, Words words) {
    const std::string form = "polyline open|closed X Y ...";
    if (words.empty() || (words[0] != "open" && words[0] != "closed"))
        fault("cad " + form);
    add_path(state, CadShape::polyline, words.subspan(1), form);
    state.application->active->model_space.back()->closed = words[0] == "closed";
}

void spline(CadState& state, Words words) {
    add_path(state, CadShape::spline, words, "spline X Y ...");
}

void other(CadState& state, Words words) {
    want(words, 1, "other CLASS");
    add_entity(state, CadShape::other, {}).ObjectName = words[0];
}

void pick(CadState& state, Words words) {
    want(words, 2, "pick X Y");
    state.picks.emplace_back(PickedPoint{real_number(words[0]), real_number(words[1])});
}

void pick_error(CadState& state, Words words) {
    want(words, 1, "pick-error HEX");
    state.picks.emplace_back(hex_number(words[0]));
}

void fail(CadState& state, Words words) {
    want(words, 2, "fail MEMBER HEX");
    if (!is_cad_member(words[0]))
        fault("the CAD has no member " + word_text(words[0]));
    state.failures.push_back({words[0], hex_number(words[1])});
}

using Action = void (*)(CadState&, Words);

constexpr auto kActions = std::to_array<std::pair<std::string_view, Action>>({
    {"running", running},
    {"none", none},
    {"document", document},
    {"no-document", no_document},
    {"line", line},
    {"point", point},
    {"circle", circle},
    {"arc", arc},
    {"polyline", polyline},
    {"spline", spline},
    {"other", other},
    {"pick", pick},
    {"pick-error", pick_error},
    {"fail", fail},
});

} // namespace

void cad_line(CadState& state, std::span<const std::string> words) {
    if (words.empty())
        fault("cad without an action");
    const auto found = std::ranges::find(kActions, words[0], [](const auto& a) { return a.first; });
    if (found == kActions.end())
        fault("unknown action cad " + word_text(words[0]));
    found->second(state, words.subspan(1));
}

} // namespace velmora::driver
