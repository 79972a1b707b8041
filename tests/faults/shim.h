// A system that fails at a call of one's choice. The library stands between the program and the
// kernel: from the first `faults_begin` on, every call that touches a file comes by here, also
// those that the C library makes of its own. Preloaded into any program, it obeys the environment
// instead.
#pragma once

extern "C" {

/// What happens at the chosen call.
enum FaultKind : int {
    fault_none = 0,
    fault_kill = -1,  ///< the process is gone, as by a loss of power
    fault_short = -2, ///< a write takes half of the bytes
    // any other number: the call fails with this errno
};

/// Counts the calls of this process from 1; the one with the number `at` meets its fault. False
/// where the kernel lets nobody stand between.
bool faults_begin(long at, int kind);
/// Leaves the calls alone again; how many there were.
long faults_end();
/// The number of the call that met its fault in the kernel's table, -1 for none.
long faults_met();
}
