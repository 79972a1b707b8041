// Carries a script out, a line each time that the windows are idle. The next step is always armed
// before a line is carried out: a line that opens a modal window returns only when that window has
// closed, and the lines behind it run inside.
#pragma once

#include "script/script.h"
#include "timing/watchdog.h"
#include "windows/stage.h"

#include <QObject>
#include <cstddef>
#include <vector>

namespace velmora::driver {

class Runner : public QObject {
  public:
    Runner(Stage& stage, std::vector<ScriptLine> lines);
    /// To be called once; the steps come from the event loop.
    void begin();

  private:
    void arm(int milliseconds);
    void step();
    void carry_out_next();

    Stage& stage_;
    std::vector<ScriptLine> lines_;
    std::size_t next_ = 0;
    bool settled_ = false; ///< the windows were idle a turn of the event loop ago
    Watchdog watchdog_;
};

} // namespace velmora::driver
