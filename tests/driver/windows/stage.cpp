#include "windows/stage.h"

#include "adapters/qt/qt_shell.h"
#include "document/feedback.h"
#include "document/session.h"
#include "script/numbers.h"
#include "script/words.h"
#include "scripted/dialogs.h"
#include "services/guide.h"
#include "windows/ending.h"

namespace velmora::driver {

namespace {

template <class Base, class Made>
Made* place(std::unique_ptr<Base>& member, std::unique_ptr<Made> made) {
    Made* plain = made.get();
    member = std::move(made);
    return plain;
}

} // namespace

Stage::Stage(const std::string& work, const std::string& program) : places(work, program) {
    platform_.dialogs = std::make_unique<ScriptedDialogs>(transcript, places, answers);
    platform_.shell =
        std::make_unique<ScriptedShell>(transcript, places, make_qt_shell(guide_language));
    platform_.cad = std::make_unique<ScriptedCad>(cad);
    machine_ = place(platform_.machine, std::make_unique<ScriptedMachine>());
    settings_ = place(platform_.settings, std::make_unique<ScriptedSettings>());
    cad.no_pick = [this] {
        leave_with_fault(line, "GetPoint found no pick");
    };
    watch();
    platform_.install();
    session.program_folder = program;
}

void Stage::watch() {
    WindowEvents& events = windows().events;
    events.opened = [this](const std::string& name) {
        transcript.line("window", name, "open");
    };
    events.closed = [this](const std::string& name) {
        transcript.line("window", name, "closed");
    };
    events.status = [this](const std::string& text) {
        if (tracing)
            transcript.line("status", places.word(text));
    };
    events.pointer = [this](int pointer) {
        if (tracing)
            transcript.line("pointer", number_text(std::int32_t{pointer}));
    };
    events.stopped = [this](const RuntimeError& failure) {
        transcript.line("fault", number_text(std::int32_t{failure.number}),
                        places.word(description_of(failure)));
    };
    events.fault = [this](const RuntimeError& failure) {
        windows().events.stopped(failure);
        leave(ExitStatus::run_time_error);
    };
    events.ended = [this] {
        transcript.line("ended");
        leave(ExitStatus::done);
    };
}

bool Stage::idle() const {
    const bool starting = started && session.FirstActivate != False;
    return !waiting && !starting && windows().idle();
}

} // namespace velmora::driver
