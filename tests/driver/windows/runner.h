// Carries lines out, one each time that the windows are idle. The next step is always armed
// before a line is carried out: a line that opens a modal window returns only when that window has
// closed, and the lines behind it run inside.
#pragma once

#include "script/script.h"
#include "timing/watchdog.h"
#include "windows/stage.h"

#include <QObject>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace velmora::driver {

/// Where the lines come from, and what becomes of one that can't be carried out.
struct LineSource {
    /// The next line, asked for when the windows are idle; nothing at the end.
    std::function<std::optional<ScriptLine>()> next;
    std::function<void(int line, const std::string& reason)> fault;
};

/// The lines of a script; the first that can't be carried out ends the process.
[[nodiscard]] LineSource lines_of(std::vector<ScriptLine> lines);

class Runner : public QObject {
  public:
    Runner(Stage& stage, LineSource source);
    /// To be called once; the steps come from the event loop.
    void begin();

  private:
    void arm(int milliseconds);
    void step();
    void carry_out(const ScriptLine& line);

    Stage& stage_;
    LineSource source_;
    bool settled_ = false; ///< the windows were idle a turn of the event loop ago
    Watchdog watchdog_;
};

} // namespace velmora::driver
