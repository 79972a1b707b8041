#include "services/view_choices.h"

#include "document/state/view_choices.h"
#include "platform/platform.h"
#include "platform/settings_store.h"

#include <array>
#include <string_view>

namespace velmora {

namespace {

constexpr std::string_view kSection = "Values";

struct Choice {
    std::string_view key;
    Flag ViewChoiceState::*value;
};

constexpr auto kChoices = std::to_array<Choice>({
    {"fit_on_open", &ViewChoiceState::FitOnOpen},
    {"rulers", &ViewChoiceState::ShowRulers},
    {"position", &ViewChoiceState::ShowPosition},
});

Flag stored(const Choice& choice) {
    const auto text = platform().settings.get(kSection, choice.key);
    if (text == "1")
        return True;
    return text == "0" ? False : ViewChoiceState{}.*choice.value;
}

} // namespace

void read_view_choices() {
    for (const Choice& choice : kChoices)
        state::view_choices.*choice.value = stored(choice);
}

void write_view_choices() {
    for (const Choice& choice : kChoices) {
        const Flag value = state::view_choices.*choice.value;
        if (value != stored(choice))
            platform().settings.save(kSection, choice.key, value != False ? "1" : "0");
    }
}

} // namespace velmora
