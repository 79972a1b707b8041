#include "timing/watchdog.h"

#include <future>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace velmora::driver {
namespace {

using namespace std::chrono_literals;

TEST(Watchdog, tells_the_line_that_takes_too_long) {
    std::promise<int> told;
    Watchdog watchdog(1ms, [&](int line) { told.set_value(line); });
    watchdog.begin(7);
    EXPECT_EQ(told.get_future().get(), 7);
}

TEST(Watchdog, says_nothing_of_lines_that_end) {
    {
        Watchdog watchdog(1h, [](int) { ADD_FAILURE(); });
        watchdog.begin(1);
        watchdog.begin(2);
    }
    Watchdog idle(1ms, [](int) { ADD_FAILURE(); });
}

} // namespace
} // namespace velmora::driver
