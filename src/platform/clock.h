// Time.
#pragma once

#include <chrono>

namespace velmora {

class Clock {
  public:
    virtual ~Clock() = default;
    [[nodiscard]] virtual std::chrono::steady_clock::time_point now() = 0;
};

} // namespace velmora
