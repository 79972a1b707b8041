#include "adapters/qt/sound.h"

#include "runtime/paths.h"

#if defined(VELMORA_CANBERRA)
#include <canberra.h>
#include <cstdlib>
#include <filesystem>
#include <thread>
#elif defined(_WIN32)
#include <windows.h>

#include <mmsystem.h>
#endif

namespace velmora {

namespace {

#if defined(VELMORA_CANBERRA)

struct CloseContext {
    void operator()(ca_context* context) const { ca_context_destroy(context); }
};

/// The socket of a sound server, or a card. Without either the sound library would complain aloud.
bool has_output() {
    if (std::getenv("PULSE_SERVER") != nullptr)
        return true;
    const char* run = std::getenv("XDG_RUNTIME_DIR");
    const std::filesystem::path doors = run == nullptr ? "/run" : run;
    std::error_code ignored;
    for (const auto& door : {doors / "pulse" / "native", doors / "pipewire-0",
                             std::filesystem::path("/proc/asound/card0")})
        if (std::filesystem::exists(door, ignored))
            return true;
    return false;
}

/// The sound server is looked for on a thread of its own: that can take its time.
class DesktopSound : public SoundPlayer {
  public:
    void play(const std::string& file) override {
        if (!has_output())
            return;
        worker_ = std::jthread([this, file] {
            if (context_ == nullptr)
                open();
            if (context_ != nullptr)
                ca_context_play(context_.get(), kId, CA_PROP_MEDIA_FILENAME, file.c_str(),
                                CA_PROP_APPLICATION_NAME, "Velmora", nullptr);
        });
    }

  private:
    static constexpr std::uint32_t kId = 1;

    void open() {
        ca_context* made = nullptr;
        if (ca_context_create(&made) == CA_SUCCESS)
            context_.reset(made);
    }

    std::unique_ptr<ca_context, CloseContext> context_;
    std::jthread worker_; // one sound waits for the start of the one before
};

#elif defined(_WIN32)

class DesktopSound : public SoundPlayer {
  public:
    void play(const std::string& file) override {
        const auto path = runtime::native_path(file).wstring();
        PlaySoundW(path.c_str(), nullptr, SND_FILENAME | SND_ASYNC | SND_NODEFAULT);
    }
};

#else

class DesktopSound : public SoundPlayer {
  public:
    void play(const std::string&) override {}
};

#endif

} // namespace

std::unique_ptr<SoundPlayer> make_sound_player() {
    return std::make_unique<DesktopSound>();
}

} // namespace velmora
