// The frame of the whole-shape operations: messages on the panel and the hourglass around the work,
// one error route around all of it.
#pragma once

#include "document/feedback.h"
#include "runtime/error.h"
#include "services/messages.h"

#include <string_view>

namespace velmora {

/// Runs `work` between the start and the end message. On a run-time error the routine's box is
/// shown instead of the end message; panel and pointer stay, and so does what was done.
template <class Work>
void framed(std::string_view prefix, int start_message, int end_message, Work&& work) {
    trap(
        [&] {
            LongOperation operation(GetMensaje(start_message));
            work();
            operation.finish(GetMensaje(end_message));
        },
        [&](const RuntimeError& failure) { show_trap(prefix, failure); });
}

} // namespace velmora
