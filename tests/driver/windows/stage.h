// The program on its stage: the real windows and files, with the scripted parts in the places of
// what a person, the desktop and the CAD would answer.
#pragma once

#include "app/qt_platform.h"
#include "script/places.h"
#include "script/transcript.h"
#include "scripted/answers.h"
#include "scripted/cad.h"
#include "scripted/machine.h"

#include <QEventLoop>
#include <string>

namespace velmora::driver {

class Stage {
  public:
    Stage(const std::string& work, const std::string& program);

    Transcript transcript{print_line};
    Places places;
    Answers answers;
    CadState cad;
    bool started = false; ///< `start` was reached
    bool tracing = false;
    bool waiting = false;   ///< inside `wait`: the lines behind it are not due
    bool ctrl_held = false; ///< by `key-down`
    int line = 0;           ///< of the script

    [[nodiscard]] WindowHost& windows() const { return *platform_.windows; }
    [[nodiscard]] ScriptedMachine& machine() const { return *machine_; }
    [[nodiscard]] ScriptedSettings& settings() const { return *settings_; }

    /// The windows have done all that the lines so far asked of them.
    [[nodiscard]] bool idle() const;

  private:
    void watch();

    QtPlatform platform_;
    ScriptedMachine* machine_ = nullptr;
    ScriptedSettings* settings_ = nullptr;
};

} // namespace velmora::driver
