#include "windows/ending.h"

#include "windows/folders.h"

#include <cstdio>
#include <cstdlib>

namespace velmora::driver {

namespace {

const Folders* made_folders = nullptr;

} // namespace

void remove_at_end(const Folders& folders) {
    made_folders = &folders;
}

void leave(ExitStatus status) {
    std::fflush(stdout);
    std::fflush(stderr);
    if (made_folders != nullptr)
        made_folders->remove();
    std::_Exit(static_cast<int>(status));
}

void leave_with_fault(int line, const std::string& reason) {
    std::fprintf(stderr, "line %d: %s\n", line, reason.c_str());
    leave(ExitStatus::script_fault);
}

} // namespace velmora::driver
