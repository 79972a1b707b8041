// Ends the driver when a line of the script takes too long, also when the program hangs.
#pragma once

#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <optional>
#include <thread>

namespace velmora::driver {

class Watchdog {
  public:
    /// `expired` gets the line and runs on the watchdog's own thread.
    Watchdog(std::chrono::milliseconds limit, std::function<void(int line)> expired);
    ~Watchdog();
    Watchdog(const Watchdog&) = delete;
    Watchdog& operator=(const Watchdog&) = delete;

    /// A line begins; the one before is done.
    void begin(int line);

  private:
    using Clock = std::chrono::steady_clock;

    void watch();

    const std::chrono::milliseconds limit_;
    const std::function<void(int)> expired_;
    std::mutex mutex_;
    std::condition_variable changed_;
    std::optional<Clock::time_point> deadline_;
    int line_ = 0;
    bool stopped_ = false;
    std::thread thread_;
};

} // namespace velmora::driver
