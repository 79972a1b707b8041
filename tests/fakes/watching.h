// Services that let a test look at the session in the middle of a command: each takes the place of
// the platform's own for its life, records as that does, and calls the test first.
#pragma once

#include "fakes/put_in_place.h"
#include "fakes/recording_platform.h"

#include <functional>
#include <string_view>
#include <utility>

namespace velmora::test {

/// A service in the place of the platform's own for its life.
template <class Service, class Base>
class InPlace : public Base {
  public:
    InPlace(const InPlace&) = delete;
    InPlace& operator=(const InPlace&) = delete;
    ~InPlace() override { put_in_place(former_); }

  protected:
    explicit InPlace(Service& former) : former_(former) {
        put_in_place(static_cast<Service&>(*this));
    }
    Service& former() { return former_; }

  private:
    Service& former_;
};

/// Looks when a box comes up and when an open dialog does.
class WatchingDialogs : public InPlace<Dialogs, RecordingDialogs> {
  public:
    explicit WatchingDialogs(std::function<void()> look)
        : InPlace(platform().dialogs), look_(std::move(look)) {}

    int message(std::string_view text, int buttons, std::string_view title) override {
        look_();
        return RecordingDialogs::message(text, buttons, title);
    }
    std::string open_file(const FileRequest& request) override {
        look_();
        return RecordingDialogs::open_file(request);
    }

  private:
    std::function<void()> look_;
};

/// Looks before each repaint of the canvas.
class WatchingSurface : public InPlace<Surface, RecordingSurface> {
  public:
    explicit WatchingSurface(std::function<void()> look)
        : InPlace(platform().pic), look_(std::move(look)) {}

    void Cls() override {
        look_();
        RecordingSurface::Cls();
    }

  private:
    std::function<void()> look_;
};

/// Looks before a file goes to the bin, with its path.
class WatchingShell : public InPlace<Shell, RecordingShell> {
  public:
    explicit WatchingShell(std::function<void(std::string_view)> look)
        : InPlace(platform().shell), look_(std::move(look)) {}

    bool recycle(std::string_view path) override {
        look_(path);
        return RecordingShell::recycle(path);
    }

  private:
    std::function<void(std::string_view)> look_;
};

/// Looks each time the windows get their turn.
class WatchingTurns : public InPlace<ProgramWindows, RecordingWindows> {
  public:
    explicit WatchingTurns(std::function<void()> look)
        : InPlace(platform().windows), look_(std::move(look)) {}

    void yield() override {
        ++yields;
        look_();
    }

  private:
    std::function<void()> look_;
};

/// Looks when a setting is read or stored; the values stay the platform's.
class WatchingSettings : public InPlace<SettingsStore, SettingsStore> {
  public:
    WatchingSettings() : InPlace(platform().settings) {}

    std::function<void()> at_get;  ///< before the first reading alone
    std::function<void()> at_save; ///< before the first storing alone

    std::optional<std::string> get(std::string_view section, std::string_view key) override {
        once(at_get);
        return former().get(section, key);
    }
    void save(std::string_view section, std::string_view key, std::string_view value) override {
        once(at_save);
        former().save(section, key, value);
    }

  private:
    static void once(std::function<void()>& look) {
        if (const auto taken = std::exchange(look, nullptr))
            taken();
    }
};

} // namespace velmora::test
