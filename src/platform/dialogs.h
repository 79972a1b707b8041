// Boxes and dialogs that a person answers.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace velmora {

/// Answers of a message box.
namespace answer {
inline constexpr int ok = 1;
inline constexpr int cancel = 2;
inline constexpr int yes = 6;
inline constexpr int no = 7;
} // namespace answer

/// Buttons and icon of a message box, added up.
namespace buttons {
inline constexpr int ok = 0;
inline constexpr int ok_cancel = 1;
inline constexpr int yes_no_cancel = 3;
inline constexpr int yes_no = 4;
inline constexpr int critical = 16;
inline constexpr int question = 32;
inline constexpr int exclamation = 48;
inline constexpr int information = 64;
} // namespace buttons

struct FileRequest {
    std::string title;
    std::string filter; ///< "Archivo DAT (*.DAT)|*.DAT|...": names and patterns between bars
    std::string folder; ///< where the dialog opens, unless the name has its own
    std::string name;   ///< an absolute one wins over the folder
    std::string extension = {}; ///< ".dat": what a name without one takes when it is saved
};

struct FontChoice {
    std::string name;
    double size = 0; ///< points
    bool bold = false;
    bool italic = false;
};

class Dialogs {
  public:
    virtual ~Dialogs() = default;
    /// Shows a box and returns the answer.
    virtual int message(std::string_view text, int buttons_and_icon, std::string_view title) = 0;
    /// The same where an icon helps that no code names: it is for the eye alone. Where there are no
    /// icons the box is shown as coded.
    virtual int message_with_icon(int /*icon*/, std::string_view text, int buttons_and_icon,
                                  std::string_view title) {
        return message(text, buttons_and_icon, title);
    }
    /// Nothing when cancelled.
    virtual std::optional<std::string> input(std::string_view prompt, std::string_view title,
                                             std::string_view preset) = 0;
    /// The chosen path, empty when cancelled.
    virtual std::string open_file(const FileRequest& request) = 0;
    virtual std::string save_file(const FileRequest& request) = 0;
    /// A colour as red + 256 green + 65536 blue.
    virtual std::optional<std::uint32_t> choose_colour(std::uint32_t present) = 0;
    virtual std::optional<FontChoice> choose_font(const FontChoice& present) = 0;
};

} // namespace velmora
