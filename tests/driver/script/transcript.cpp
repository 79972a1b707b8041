#include "script/transcript.h"

#include <cstdio>

namespace velmora::driver {

void print_line(std::string_view line) {
    std::fwrite(line.data(), 1, line.size(), stdout);
    std::fputc('\n', stdout);
    std::fflush(stdout);
}

} // namespace velmora::driver
