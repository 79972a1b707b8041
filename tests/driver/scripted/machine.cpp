#include "scripted/machine.h"

namespace velmora::driver {

namespace {

/// What the desktop answers when a program started: above 32.
constexpr int kStarted = 42;

} // namespace

ScriptedShell::ScriptedShell(Transcript& transcript, const Places& places,
                             std::unique_ptr<Shell> desktop)
    : transcript_(transcript), places_(places), desktop_(std::move(desktop)) {}

int ScriptedShell::open(std::string_view target) {
    transcript_.line("shell", "open", places_.word(target));
    return kStarted;
}

void ScriptedShell::play(std::string_view file) {
    transcript_.line("sound", places_.word(file));
}

bool ScriptedShell::recycle(std::string_view path) {
    return desktop_->recycle(path);
}

bool ScriptedShell::to_bin(std::string_view path) {
    return desktop_->to_bin(path);
}

void ScriptedShell::settle(std::string_view path) {
    desktop_->settle(path);
}

std::optional<std::string> ScriptedSettings::get(std::string_view section, std::string_view key) {
    const auto found = values_.find({std::string(section), std::string(key)});
    if (found == values_.end())
        return std::nullopt;
    return found->second;
}

void ScriptedSettings::save(std::string_view section, std::string_view key,
                            std::string_view value) {
    values_[{std::string(section), std::string(key)}] = value;
}

} // namespace velmora::driver
