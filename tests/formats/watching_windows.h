// Windows that let a test act when the logic gives them their turn.
#pragma once

#include "support/recording_platform.h"

#include <functional>

namespace velmora::test {

/// Takes the place of the platform's windows for its life.
class WatchingWindows : public RecordingWindows {
  public:
    WatchingWindows(RecordingPlatform& platform, std::function<void()> at_yield)
        : platform_(platform), at_yield_(std::move(at_yield)) {
        install(*this);
    }
    ~WatchingWindows() override { install(platform_.windows); }
    WatchingWindows(const WatchingWindows&) = delete;
    WatchingWindows& operator=(const WatchingWindows&) = delete;

    void yield() override {
        ++yields;
        at_yield_();
    }

  private:
    void install(ProgramWindows& windows) {
        set_platform({platform_.dialogs, windows, platform_.shell, platform_.settings,
                      *platform_.database, platform_.clock, platform_.machine, platform_.pic,
                      platform_.cad});
    }

    RecordingPlatform& platform_;
    std::function<void()> at_yield_;
};

} // namespace velmora::test
