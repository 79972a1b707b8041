#include "timing/watchdog.h"

#include <utility>

namespace velmora::driver {

Watchdog::Watchdog(std::chrono::milliseconds limit, std::function<void(int)> expired)
    : limit_(limit), expired_(std::move(expired)), thread_([this] { watch(); }) {}

Watchdog::~Watchdog() {
    {
        const std::lock_guard lock(mutex_);
        stopped_ = true;
    }
    changed_.notify_one();
    thread_.join();
}

void Watchdog::begin(int line) {
    {
        const std::lock_guard lock(mutex_);
        line_ = line;
        deadline_ = Clock::now() + limit_;
    }
    changed_.notify_one();
}

void Watchdog::watch() {
    std::unique_lock lock(mutex_);
    while (!stopped_) {
        if (!deadline_) {
            changed_.wait(lock);
            continue;
        }
        const auto deadline = *deadline_;
        if (changed_.wait_until(lock, deadline) == std::cv_status::timeout &&
            deadline_ == deadline) {
            deadline_.reset();
            const int line = line_;
            lock.unlock();
            expired_(line);
            lock.lock();
        }
    }
}

} // namespace velmora::driver
