// The lines of a script, carried out.
#pragma once

#include <span>
#include <string>

namespace velmora::driver {

class Stage;

/// Carries out one line. A ScriptFault for what it can't be.
void carry_out(Stage& stage, std::span<const std::string> words);

using Words = std::span<const std::string>;
using Action = void (*)(Stage&, Words);
struct NamedAction {
    std::string_view name;
    Action action;
};

/// The tables that `carry_out` looks in: what a person does, what the machine is set up with, and
/// `show` and its like.
[[nodiscard]] std::span<const NamedAction> window_actions();
[[nodiscard]] std::span<const NamedAction> setup_actions();
[[nodiscard]] std::span<const NamedAction> question_actions();

/// A ScriptFault that tells the form of the line, unless as many words stand behind it.
void want_words(Words words, std::size_t count, const char* form);

} // namespace velmora::driver
