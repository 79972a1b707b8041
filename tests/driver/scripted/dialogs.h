// The boxes and dialogs of the program, answered by the script and told in the transcript.
#pragma once

#include "platform/dialogs.h"
#include "script/places.h"
#include "script/transcript.h"
#include "scripted/answers.h"

namespace velmora::driver {

class ScriptedDialogs : public Dialogs {
  public:
    ScriptedDialogs(Transcript& transcript, const Places& places, Answers& answers);

    int message(std::string_view text, int buttons_and_icon, std::string_view title) override;
    std::optional<std::string> input(std::string_view prompt, std::string_view title,
                                     std::string_view preset) override;
    std::string open_file(const FileRequest& request) override;
    std::string save_file(const FileRequest& request) override;
    std::optional<std::uint32_t> choose_colour(std::uint32_t present) override;
    std::optional<FontChoice> choose_font(const FontChoice& present) override;

  private:
    std::string take_path(std::string_view kind, const FileRequest& request);

    Transcript& transcript_;
    const Places& places_;
    Answers& answers_;
};

} // namespace velmora::driver
