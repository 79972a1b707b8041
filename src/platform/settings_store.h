// The user's stored settings: text under section and key.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace velmora {

class SettingsStore {
  public:
    virtual ~SettingsStore() = default;
    /// Nothing when the key is not stored.
    [[nodiscard]] virtual std::optional<std::string> get(std::string_view section,
                                                         std::string_view key) = 0;
    virtual void save(std::string_view section, std::string_view key, std::string_view value) = 0;
    /// Brings what was saved to where it stays, and in what others saved there meanwhile. False
    /// where nothing can be kept.
    [[nodiscard]] virtual bool keep() { return true; }
    /// Where it stays, for the user; empty where he can't see it.
    [[nodiscard]] virtual std::string place() const { return {}; }
};

} // namespace velmora
