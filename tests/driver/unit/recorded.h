// A transcript that a test reads.
#pragma once

#include "script/places.h"
#include "script/transcript.h"

#include <string>
#include <vector>

namespace velmora::driver {

struct Recorded {
    std::vector<std::string> lines;
    Transcript transcript{[this](std::string_view line) {
        lines.emplace_back(line);
    }};
    Places places{"/tmp/x/work", "/tmp/x/program"};
};

} // namespace velmora::driver
