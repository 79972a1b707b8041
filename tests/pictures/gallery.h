// A picture of every window that the registry knows, of each of its tabs and of the menus.
#pragma once

#include <QString>
#include <string_view>

namespace velmora::pictures {

/// The languages of the program, by their letters.
inline constexpr std::string_view kLanguages[] = {"E", "I", "F", "P", "T"};

/// The desktop's colours.
enum class Theme { light, dark };
inline constexpr Theme kThemes[] = {Theme::light, Theme::dark};
[[nodiscard]] QString name_of(Theme theme);

/// The desktop's scale in per cent, at which this process draws.
[[nodiscard]] int present_scale();
inline constexpr int kScales[] = {100, 200};

/// "setup-1.E.dark.200.png": a window's page, its language, colours and scale.
[[nodiscard]] QString file_name(const QString& page, std::string_view language, Theme theme,
                                int scale);

/// Writes the pictures of one language and theme into `folder`. False when a window could not be
/// shown or a picture not be written; what failed goes to standard error.
[[nodiscard]] bool take_pictures(const QString& folder, std::string_view language, Theme theme);

} // namespace velmora::pictures
