// Settings that let a test look when the logic reads or stores one.
#pragma once

#include "support/recording_platform.h"

#include <functional>

namespace velmora::test {

/// Takes the place of the platform's settings for its life, over the same values.
class WatchingSettings : public SettingsStore {
  public:
    explicit WatchingSettings(RecordingPlatform& platform) : platform_(platform) { install(*this); }
    ~WatchingSettings() override { install(platform_.settings); }
    WatchingSettings(const WatchingSettings&) = delete;
    WatchingSettings& operator=(const WatchingSettings&) = delete;

    std::function<void()> at_get;  ///< before the first reading alone
    std::function<void()> at_save; ///< before the first storing alone

    std::optional<std::string> get(std::string_view section, std::string_view key) override {
        once(at_get);
        return platform_.settings.get(section, key);
    }
    void save(std::string_view section, std::string_view key, std::string_view value) override {
        once(at_save);
        platform_.settings.save(section, key, value);
    }

  private:
    static void once(std::function<void()>& look) {
        if (const auto taken = std::exchange(look, nullptr))
            taken();
    }
    void install(SettingsStore& settings) {
        set_platform({platform_.dialogs, platform_.windows, platform_.shell, settings,
                      *platform_.database, platform_.clock, platform_.machine, platform_.pic,
                      platform_.cad});
    }

    RecordingPlatform& platform_;
};

} // namespace velmora::test
