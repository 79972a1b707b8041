// The number of the run-time error that a piece of code raises.
#pragma once

#include "runtime/error.h"

namespace velmora::test {

/// 0 when nothing was raised.
template <class Body>
int number_of(Body&& body) {
    try {
        static_cast<void>(body());
    } catch (const RuntimeError& failure) {
        return failure.number;
    }
    return 0;
}

} // namespace velmora::test
