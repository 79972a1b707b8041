#include "windows/actions.h"

#include "script/fault.h"
#include "script/words.h"

#include <algorithm>
#include <array>

namespace velmora::driver {

void want_words(Words words, std::size_t count, const char* form) {
    if (words.size() != count)
        fault(std::string("the form is ") + form);
}

void carry_out(Stage& stage, std::span<const std::string> words) {
    for (const auto& table : {window_actions(), setup_actions(), question_actions()}) {
        const auto found = std::ranges::find(table, words[0], &NamedAction::name);
        if (found != table.end())
            return found->action(stage, words.subspan(1));
    }
    fault("unknown action " + word_text(words[0]));
}

} // namespace velmora::driver
