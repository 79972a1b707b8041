// Runs a writer over and over in processes of its own, each time with another of its calls of the
// system failing or the last, and looks at what is left.
#pragma once

#include <functional>
#include <string>

namespace velmora::test {

/// What a process that was hampered told, as far as it came.
struct Outcome {
    bool killed = false;   ///< by the fault
    bool finished = false; ///< the writer returned, or failed by a run-time error
    int error = 0;         ///< run-time error, 0 where the writer claims success
    long calls = 0;
    long met = -1; ///< the call that met its fault
};

/// One hampered run: `body` in a child process, with a fault of `kind` at its call number `at`.
[[nodiscard]] Outcome run_hampered(const std::function<void()>& body, long at, int kind);

struct Hampering {
    std::function<void()> prepare; ///< before each run
    std::function<void()> write;   ///< in a process of its own
    /// After each run; `where` names it for the report.
    std::function<void(const Outcome&, const std::string& where)> look;
};

/// Every call of the writer, with every kind of fault. The number of runs.
long hamper_every_call(const Hampering& hampering);

/// False where the kernel lets no test stand between.
[[nodiscard]] bool can_hamper();

} // namespace velmora::test
