// The stand-in CAD in a process of its own, for the life of a test.
#pragma once

#include "adapters/com/late_bound.h"

#include <initializer_list>
#include <optional>
#include <string>

namespace velmora::test {

struct CloseWindowsHandle {
    void operator()(void* handle) const noexcept { CloseHandle(handle); }
};
using WindowsHandle = std::unique_ptr<void, CloseWindowsHandle>;

/// Runs the server's program with one word, /register or /unregister, to its end: its exit code.
[[nodiscard]] unsigned long run_cad_server(const wchar_t* word);

class CadServer {
  public:
    /// Starts the program that stands beside the test's own and waits until it can be found.
    CadServer();
    /// Ends it, whether it still answers or not, and waits for its end.
    ~CadServer();
    CadServer(const CadServer&) = delete;
    CadServer& operator=(const CadServer&) = delete;

    /// Lines of a scenario without their `cad`, and the server's own: `busy N`, `hide MEMBER`,
    /// `failures plain|exceptions`, `arrays of-numbers|of-variants`, `shorten` (the last entity
    /// loses its last number), `erase` (the last entity goes); and before the next use of a member
    /// `die-at MEMBER`, `erase-at MEMBER` (the last entity goes), `close-at MEMBER` (the drawings
    /// are closed).
    void say(std::initializer_list<const char*> lines);
    /// What a scenario's `show cad` prints.
    [[nodiscard]] std::string shown();
    /// The prompt that GetPoint was asked with last.
    [[nodiscard]] std::string prompt();
    /// Ends the process from outside, as a crash would.
    void kill();

  private:
    WindowsHandle process_;
    std::optional<com::LateBound> application_;
};

} // namespace velmora::test
