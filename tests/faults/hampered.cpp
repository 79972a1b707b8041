#include "hampered.h"

#include "runtime/error.h"
#include "shim.h"

#include <array>
#include <cerrno>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

namespace velmora::test {

namespace {

struct Told {
    int error;
    long calls;
    long met;
};

constexpr int kNotCaught = 99;

[[noreturn]] void be_hampered(const std::function<void()>& body, long at, int kind, int report) {
    Told told{};
    if (!faults_begin(at, kind))
        _exit(kNotCaught);
    trap(body, [&](const RuntimeError& failure) { told.error = failure.number; });
    told.calls = faults_end();
    told.met = faults_met();
    const bool whole = write(report, &told, sizeof told) == sizeof told;
    _exit(whole ? 0 : 1);
}

Outcome read_outcome(int report, pid_t child) {
    Told told{};
    Outcome outcome;
    outcome.finished = read(report, &told, sizeof told) == sizeof told;
    outcome.error = told.error;
    outcome.calls = told.calls;
    outcome.met = told.met;
    int status = 0;
    waitpid(child, &status, 0);
    outcome.killed = WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL;
    return outcome;
}

struct Kind {
    const char* name;
    int value;
};

constexpr auto kinds = std::to_array<Kind>({{"kill", fault_kill},
                                            {"ENOSPC", ENOSPC},
                                            {"EIO", EIO},
                                            {"EACCES", EACCES},
                                            {"EINTR", EINTR},
                                            {"short write", fault_short}});

long hamper(const Hampering& hampering, const Kind& kind, long calls) {
    for (long at = 1; at <= calls; ++at) {
        hampering.prepare();
        const Outcome outcome = run_hampered(hampering.write, at, kind.value);
        hampering.look(outcome, std::string(kind.name) + " at call " + std::to_string(at) + " of " +
                                    std::to_string(calls) + ", number " +
                                    std::to_string(outcome.met));
        if (testing::Test::HasFailure())
            return at; // the first is enough to mend
    }
    return calls;
}

} // namespace

Outcome run_hampered(const std::function<void()>& body, long at, int kind) {
    std::array<int, 2> ends{};
    if (pipe(ends.data()) != 0)
        return {};
    const pid_t child = fork();
    if (child == 0)
        be_hampered(body, at, kind, ends[1]);
    close(ends[1]);
    const Outcome outcome = read_outcome(ends[0], child);
    close(ends[0]);
    return outcome;
}

long hamper_every_call(const Hampering& hampering) {
    hampering.prepare();
    const Outcome unhampered = run_hampered(hampering.write, 0, fault_none);
    EXPECT_TRUE(unhampered.finished);
    EXPECT_GT(unhampered.calls, 10);
    hampering.look(unhampered, "unhampered");
    long runs = 1;
    for (const Kind& kind : kinds)
        runs += hamper(hampering, kind, unhampered.calls);
    return runs;
}

bool can_hamper() {
    return run_hampered([] {}, 0, fault_none).finished;
}

} // namespace velmora::test
