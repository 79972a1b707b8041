// A reading or a capture that the user ends before its end: the outline of before stands.
#pragma once

#include "document/forma.h"
#include "document/state/document.h"
#include "document/windows/wininfo.h"

#include <array>
#include <cstdint>
#include <functional>
#include <string>

namespace velmora {

/// Runs `work`, which Esc ends at its next step. False then: the files that it opened are closed,
/// what else it changed is the caller's to put back.
[[nodiscard]] bool run_or_cancel(const std::function<void()>& work);

/// The outline, with all that is told of it, as it is now. Only the entities of the last drawing
/// are not among it: nothing shows them.
class ShapeBefore {
  public:
    ShapeBefore();
    /// Makes it the present one again, drawn, with the default pointer and empty bars.
    void put_back() const;

  private:
    Array<Pto> points_;
    DocumentState document_;
    WinInfo wininfo_;
    std::string description_;
    std::string file_;
    std::array<std::int32_t, 6> counts_;
};

} // namespace velmora
