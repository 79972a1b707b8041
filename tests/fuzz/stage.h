// The program's parts without windows, made once for all inputs and set back before each.
#pragma once

#include "fakes/recording_platform.h"
#include "runtime/error.h"

namespace velmora::fuzz {

/// A session as at the start, with the Spanish messages open, no answers, an empty folder.
test::RecordingPlatform& fresh_stage();

/// What holds behind every read, whatever stood in the file: an outline that is not empty, of
/// finite points, and no file left open.
void expect_sound_outline();

/// Runs a piece; a run-time error is an answer.
template <class Body>
void answer(Body&& body) {
    trap(body, [](const RuntimeError&) {});
}

} // namespace velmora::fuzz
