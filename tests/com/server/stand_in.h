// The stand-in CAD: the scripted drawing of the scenarios behind the real automation interface.
#pragma once

#include "scripted/cad.h"
#include "server/served.h"

#include <string>

namespace velmora::test {

/// What runs in the server's process. Besides what a CAD offers, its application has members for
/// tests alone: Say(line), Shown (what a scenario's `show cad` prints), Prompt (of the last
/// GetPoint), Quit.
class StandIn {
  public:
    StandIn();
    StandIn(const StandIn&) = delete;
    StandIn& operator=(const StandIn&) = delete;

    [[nodiscard]] com::ComPtr<IDispatch> application();
    /// Somebody brought its window to the front.
    void activated();

  private:
    void say(const std::string& line);
    [[nodiscard]] std::string shown() const;

    Manners manners_;
    driver::CadState state_;
    driver::ScriptedCad cad_{state_};
};

} // namespace velmora::test
