// How the system tells a program that it ends.
#pragma once

#include <QObject>
#include <functional>
#include <memory>
#include <span>

namespace velmora {

class EndingSignals : public QObject {
  public:
    /// `asked` runs from the event loop when the program is asked to go (TERM, HUP, INT); the
    /// process then ends by that signal. `broken` runs inside the handler of a fault (an abort, an
    /// access beyond memory), and when the program is asked again before it got to `asked`: it may
    /// do nothing but what a handler may. One a process.
    EndingSignals(std::function<void()> asked, void (*broken)());
    ~EndingSignals() override;

  private:
    struct Private;
    std::unique_ptr<Private> d;
};

/// Makes the file of these bytes, one after the other. Safe in a signal's handler.
void dump_bytes(const char* path, std::span<const std::byte> head,
                std::span<const std::byte> body) noexcept;

/// A process of this number runs, and is one of this program's.
[[nodiscard]] bool runs_here(long process);

} // namespace velmora
