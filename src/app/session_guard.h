// Keeps the outline of a session that ends without its user: by a signal, with its display, with
// the machine. While the outline is edited it is also kept every few minutes. What a session left
// is offered at the next start.
#pragma once

#include "adapters/qt/ending_signals.h"

#include <QObject>
#include <QTimer>
#include <chrono>
#include <cstdint>
#include <string>
#include <vector>

namespace velmora {

class WindowHost;

/// One a process, made when the program's folder is known.
class SessionGuard : public QObject {
  public:
    explicit SessionGuard(WindowHost& windows,
                          std::chrono::milliseconds interval = std::chrono::minutes(3));
    /// The session ended as it should: nothing is left of it.
    ~SessionGuard() override;

    /// Writes an edited outline now.
    void keep_now() noexcept;

  private:
    void follow_handler();
    void keep_beside();
    void offer(const std::string& left);
    [[nodiscard]] bool is_edited() const;

    WindowHost& windows_;
    std::string file_;
    QTimer timer_;
    std::uint64_t kept_ = 0; ///< mark of the outline that was kept last
    EndingSignals signals_;
};

/// What sessions left in the folder that are no more, as recovery files that can be opened.
[[nodiscard]] std::vector<std::string> left_outlines(const std::string& folder);

} // namespace velmora
