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

LineSource lines_of(std::vector<ScriptLine> lines) {
    auto next = [lines = std::move(lines), at = std::size_t{0}]() mutable {
        return at == lines.size() ? std::nullopt : std::optional(lines[at++]);
    };
    return {.next = std::move(next), .fault = leave_with_fault};
}

Runner::Runner(Stage& stage, LineSource source)
    : stage_(stage), source_(std::move(source)), watchdog_(kLineLimit, expired) {}

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
    const auto line = source_.next();
    if (!line)
        leave(ExitStatus::done);
    arm(0);
    carry_out(*line);
}

void Runner::carry_out(const ScriptLine& line) {
    stage_.line = line.number;
    watchdog_.begin(line.number);
    stage_.transcript.line(">", line.text);
    try {
        driver::carry_out(stage_, split_words(line.text));
    } catch (const std::exception& fault) {
        source_.fault(line.number, fault.what());
    }
}

} // namespace velmora::driver
