// The rest of the machine: sounds and outside programs are told and not started, settings live in
// memory, the decimal separator is the script's. Deleting stays the desktop's own.
#pragma once

#include "platform/machine.h"
#include "platform/settings_store.h"
#include "platform/shell.h"
#include "script/places.h"
#include "script/transcript.h"

#include <map>
#include <memory>
#include <string>
#include <utility>

namespace velmora::driver {

class ScriptedShell : public Shell {
  public:
    ScriptedShell(Transcript& transcript, const Places& places, std::unique_ptr<Shell> desktop);

    int open(std::string_view target) override;
    void play(std::string_view file) override;
    /// Through the desktop's shell, and so the two below.
    bool recycle(std::string_view path) override;
    bool to_bin(std::string_view path) override;
    void settle(std::string_view path) override;

  private:
    Transcript& transcript_;
    const Places& places_;
    std::unique_ptr<Shell> desktop_;
};

class ScriptedSettings : public SettingsStore {
  public:
    using Key = std::pair<std::string, std::string>; ///< section, key

    std::optional<std::string> get(std::string_view section, std::string_view key) override;
    void save(std::string_view section, std::string_view key, std::string_view value) override;
    [[nodiscard]] const std::map<Key, std::string>& all() const { return values_; }

  private:
    std::map<Key, std::string> values_;
};

class ScriptedMachine : public Machine {
  public:
    char separator = '.';
    char decimal_separator() override { return separator; }
};

} // namespace velmora::driver
