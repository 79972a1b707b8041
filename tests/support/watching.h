// Services that let a test look at the session in the middle of a command: each takes the place of
// the platform's own for its life, records as that does, and calls the test first.
#pragma once

#include "support/recording_platform.h"

#include <functional>
#include <string_view>
#include <utility>

namespace velmora::test {

/// Puts these in, keeping the other services as they are.
inline void replace_services(Dialogs& dialogs, ProgramWindows& windows, Shell& shell,
                             Surface& pic) {
    const Platform& now = platform();
    set_platform({dialogs, windows, shell, now.settings, now.database, now.clock, now.machine, pic,
                  now.cad, now.previews, now.printer, now.text_outlines});
}

/// Looks when a box comes up and when an open dialog does.
class WatchingDialogs : public RecordingDialogs {
  public:
    explicit WatchingDialogs(std::function<void()> look)
        : look_(std::move(look)), former_(platform().dialogs) {
        replace(*this);
    }
    ~WatchingDialogs() override { replace(former_); }
    WatchingDialogs(const WatchingDialogs&) = delete;
    WatchingDialogs& operator=(const WatchingDialogs&) = delete;

    int message(std::string_view text, int buttons, std::string_view title) override {
        look_();
        return RecordingDialogs::message(text, buttons, title);
    }
    std::string open_file(const FileRequest& request) override {
        look_();
        return RecordingDialogs::open_file(request);
    }

  private:
    static void replace(Dialogs& dialogs) {
        const Platform& now = platform();
        replace_services(dialogs, now.windows, now.shell, now.pic);
    }

    std::function<void()> look_;
    Dialogs& former_;
};

/// Looks before each repaint of the canvas.
class WatchingSurface : public RecordingSurface {
  public:
    explicit WatchingSurface(std::function<void()> look)
        : look_(std::move(look)), former_(platform().pic) {
        replace(*this);
    }
    ~WatchingSurface() override { replace(former_); }
    WatchingSurface(const WatchingSurface&) = delete;
    WatchingSurface& operator=(const WatchingSurface&) = delete;

    void Cls() override {
        look_();
        RecordingSurface::Cls();
    }

  private:
    static void replace(Surface& pic) {
        const Platform& now = platform();
        replace_services(now.dialogs, now.windows, now.shell, pic);
    }

    std::function<void()> look_;
    Surface& former_;
};

/// Looks before a file goes to the bin, with its path.
class WatchingShell : public RecordingShell {
  public:
    explicit WatchingShell(std::function<void(std::string_view)> look)
        : look_(std::move(look)), former_(platform().shell) {
        replace(*this);
    }
    ~WatchingShell() override { replace(former_); }
    WatchingShell(const WatchingShell&) = delete;
    WatchingShell& operator=(const WatchingShell&) = delete;

    bool recycle(std::string_view path) override {
        look_(path);
        return RecordingShell::recycle(path);
    }

  private:
    static void replace(Shell& shell) {
        const Platform& now = platform();
        replace_services(now.dialogs, now.windows, shell, now.pic);
    }

    std::function<void(std::string_view)> look_;
    Shell& former_;
};

/// Looks each time the windows get their turn.
class WatchingTurns : public RecordingWindows {
  public:
    explicit WatchingTurns(std::function<void()> look)
        : look_(std::move(look)), former_(platform().windows) {
        replace(*this);
    }
    ~WatchingTurns() override { replace(former_); }
    WatchingTurns(const WatchingTurns&) = delete;
    WatchingTurns& operator=(const WatchingTurns&) = delete;

    void yield() override {
        ++yields;
        look_();
    }

  private:
    static void replace(ProgramWindows& windows) {
        const Platform& now = platform();
        replace_services(now.dialogs, windows, now.shell, now.pic);
    }

    std::function<void()> look_;
    ProgramWindows& former_;
};

} // namespace velmora::test
