#include "windows/runner.h"

#include "script/words.h"
#include "windows/actions.h"
#include "windows/ending.h"

#include <QTimer>
#include <cstdio>
#include <exception>
#include <utility>

namespace velmora::driver {

namespace {

constexpr std::chrono::seconds kLineLimit(60);
/// Between two looks at windows that are busy.
constexpr int kPause = 1;

void expired(int line) {
    std::fprintf(stderr, "line %d: did not finish in 60 seconds\n", line);
    leave(ExitStatus::timed_out);
}

} // namespace

Runner::Runner(Stage& stage, std::vector<ScriptLine> lines)
    : stage_(stage), lines_(std::move(lines)), watchdog_(kLineLimit, expired) {}

void Runner::begin() {
    arm(0);
}

void Runner::arm(int milliseconds) {
    QTimer::singleShot(milliseconds, this, [this] { step(); });
}

void Runner::step() {
    if (!stage_.idle()) {
        settled_ = false;
        return arm(kPause);
    }
    // What the last line left in the event queue comes before the next one.
    if (!std::exchange(settled_, true))
        return arm(0);
    settled_ = false;
    if (next_ == lines_.size())
        leave(ExitStatus::done);
    arm(0);
    carry_out_next();
}

void Runner::carry_out_next() {
    const ScriptLine& line = lines_[next_++];
    stage_.line = line.number;
    watchdog_.begin(line.number);
    stage_.transcript.line(">", line.text);
    try {
        carry_out(stage_, split_words(line.text));
    } catch (const std::exception& fault) {
        leave_with_fault(line.number, fault.what());
    }
}

} // namespace velmora::driver
